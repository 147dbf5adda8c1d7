#include "coders/metar.h"
#include "screens/desk.h"

namespace obsdesk {

void wire_metar(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Command4.on(Event::Enter, Command4_enter);
  k.Command4.on(Event::Click, Command4_click);
  k.Command8.on(Event::Enter, Command8_enter);
  k.Command8.on(Event::Click, Command8_click);
}

}  // namespace obsdesk
