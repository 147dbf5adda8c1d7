// The METAR and SPECI coders: the buttons Command4 (METAR, METAR(30')) and
// Command8 (SPECI) of the entry screen code the observation into the METAR frame
// of the code panel and join the groups into TXTMET or TXTSPE.
#pragma once

#include <string>

namespace obsdesk {

class Desk;

// Which report a run of the coder writes.
enum class MetarForm { Metar, Speci };

// The whole run of the coder for one report: checks, groups, joining, the two
// bulletin lines and the end of the run. A failed step leaves its words on the
// message panel and the panel as far as it came.
void run_metar_coder(Desk& ws, MetarForm form);

// The checks when a coder button receives the focus: the two METAR present
// weather choices, the cloud rows, a present weather chosen at all, and weather
// against a clear sky. False when one failed.
bool metar_focus_checks(Desk& ws);

// The SPECI's own time step: txt1 on four figures, the time boxes of the SPECI frame.
void speci_time_step(Desk& ws);
// TXTSPE: the SPECI time group, then the groups of the METAR frame.
std::string speci_text(Desk& ws);

// After a coder: the observer list opens when the report kind has its codes.
void open_observer_list(Desk& ws);

void Command4_enter(Desk& ws);
void Command4_click(Desk& ws);
void Command8_enter(Desk& ws);
void Command8_click(Desk& ws);

// Binds the two coder buttons.
void wire_metar(Desk& ws);

}  // namespace obsdesk
