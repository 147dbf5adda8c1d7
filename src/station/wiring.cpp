#include "archive/browser.h"
#include "pickers/pickers.h"
#include "station/program.h"
#include "station/report_kind.h"
#include "station/workstation.h"

namespace obsdesk {

// Each topic declares its wire function here and binds its own rules in it.

// stations
void wire_catalogue(Desk& ws);
void wire_station_settings(Desk& ws);
void wire_search(Desk& ws);
void wire_copy_out(Desk& ws);
void wire_past_hours(Desk& ws);
void wire_date_boxes(Desk& ws);

// session
void wire_session(Desk& ws);

// barometer and psychrometry
void wire_physics(Desk& ws);

// rain and tendency
void wire_rain(Desk&);
void wire_tendency_dialog(Desk&);

// coders
void wire_code_panel(Desk& ws);
void wire_synop(Desk& ws);
void wire_metar(Desk& ws);

// pickers
void wire_pickers(Desk& ws);

// archive
void wire_save(Desk& ws);
void wire_bufr(Desk& ws);

// Every topic binds its own rules; this is the one list of them.
void wire_all(Desk& ws) {
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

  // The entry rules that open a picker.
  ws.handoffs.open_irix_picker = open_irix_picker;
  ws.handoffs.open_ground_picker = open_ground_picker;
}

}  // namespace obsdesk
