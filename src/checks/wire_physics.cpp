#include "checks/temperature.h"
#include "screens/desk.h"
#include "checks/pressure_entry.h"

namespace obsdesk {

// The thermometers, the barometer, the humidity and the soil, pan, ground and
// radiation boxes of the entry screen.
void wire_physics(Desk& ws) {
  bind_pressure_entry(ws);
  bind_temperature_checks(ws);
  bind_ground_checks(ws);
}

}  // namespace obsdesk
