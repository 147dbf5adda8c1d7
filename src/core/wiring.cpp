#include "archive/browser.h"
#include "core/program.h"
#include "core/report_kind.h"
#include "core/workstation.h"

namespace obsdesk {

// Each topic declares its wire function here and binds its own rules in it.

// stations
void wire_catalogue(Workstation& ws);
void wire_station_settings(Workstation& ws);
void wire_search(Workstation& ws);
void wire_copy_out(Workstation& ws);
void wire_past_hours(Workstation& ws);
void wire_date_boxes(Workstation& ws);

// session
void wire_session(Workstation& ws);

// barometer and psychrometry
void wire_physics(Workstation& ws);

// rain and tendency
void wire_rain(Workstation&);
void wire_tendency_dialog(Workstation&);

// coders
void wire_code_panel(Workstation& ws);
void wire_synop(Workstation& ws);
void wire_metar(Workstation& ws);

// pickers
void wire_pickers(Workstation& ws);

// archive
void wire_save(Workstation& ws);
void wire_bufr(Workstation& ws);

// Every topic binds its own rules; this is the one list of them.
void wire_all(Workstation& ws) {
  wire_program(ws);
  wire_report_kind(ws);
  wire_browser(ws);

  // stations
  wire_catalogue(ws);
  wire_station_settings(ws);
  wire_search(ws);
  wire_copy_out(ws);
  wire_past_hours(ws);
  wire_date_boxes(ws);

  // session
  wire_session(ws);

  // barometer and psychrometry
  wire_physics(ws);

  // rain and tendency
  wire_rain(ws);
  wire_tendency_dialog(ws);

  // coders
  wire_code_panel(ws);
  wire_synop(ws);
  wire_metar(ws);

  // pickers
  wire_pickers(ws);

  // archive
  wire_save(ws);
  wire_bufr(ws);

}

}  // namespace obsdesk
