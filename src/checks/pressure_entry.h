// The barometer and humidity boxes of the entry screen: when the pressure
// routine runs, what it publishes, the typing checks of the barometer reading,
// the attached thermometer, the relative humidity typed in the humidity mode and
// the choice of the barometer box.
#pragma once

namespace obsdesk {

class Desk;
struct Control;

// Runs the routine on the boxes as they stand (ModuleINVERS first in the
// humidity mode) and writes the nine derived boxes. No guard: see the callers.
void compute_pressure(Desk& ws);

// Empties TC, QFE, QNH, QIN, QFF, H850, TDEW, EHPA and RH.
void empty_derived(Desk& ws);

// The barometer box in use by the Station profile: the barograph's Text41 (with
// its frame shown and Text14 hidden) or Text14. With move_focus the focus goes to
// Text41 or to the attached thermometer TP.
void choose_barometer_box(Desk& ws, bool move_focus);

// The guards of the callers.
[[nodiscard]] bool thermometer_guard(Desk& ws);  // key released in TDRY, TWET, TP
[[nodiscard]] bool t12_guard(Desk& ws);          // key released in txtt12
[[nodiscard]] bool reading_guard(Desk& ws);      // Text14 changed
[[nodiscard]] bool barograph_guard(Desk& ws);    // Text41 left

// The result of the typing checks of a barometer reading.
enum class Reading {
  Nothing,  // too short to test further, or between 99 and 106: wait for more
  Refused,  // refused, or emptied by a limit
  Good,     // goes on to the computation
};
Reading check_reading(Desk& ws, Control& box, bool empty_on_refusal);

// The attached thermometer against its limits (hard maximum 45 on Enter, 50
// when the barometer box gets the focus); a breach empties TP and takes the
// focus back. True when it stands.
[[nodiscard]] bool attached_thermometer_ok(Desk& ws, double hard_max);

// The pressure side of the thermometer boxes, bound with their other handlers
// in one place (bind_temperature_checks):
void Text13_key_enter(Desk& ws);    // TP: tested, then the barometer box
void Text28_key_enter(Desk& ws);    // TWET: against the dry bulb, then the routine
void thermometer_key_up(Desk& ws);  // TDRY, TWET, TP: the routine once all stand
void txtt12_key_up(Desk& ws);       // txtt12: the same, the reduction's T12

void bind_pressure_entry(Desk& ws);

}  // namespace obsdesk
