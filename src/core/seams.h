// Where one topic hands over to a rule or screen of another. Each is one
// function, defined beside the rules of the topic that owns it.
#pragma once

#include <functional>
#include <string>

namespace obsdesk {

class Workstation;
struct Control;

// ---- Observation session ----
// The groups shown by the hour of the observation; run after the report kind's
// rule and on every change of the hour.
void apply_hour_rules(Workstation& ws);

// ---- Calendar ----
// Today's date from the computer's clock into the six date boxes of the entry
// screen, Persian by the conversion, with the clearing tests of the opening.
void fill_today(Workstation& ws);

// ---- Cloud entry ----
// Tests a layer height (HIGL1 to HIGL3, HIGM, HIGH) against its range; outside it
// tells the layer's words, empties the box and returns the focus. True when good.
bool cloud_height_ok(Workstation& ws, Control& height_box);
// The rainfall rule that ends the cloud block: to the rain box, to TMIN3 or to
// the remarks, by hour and report kind.
void rainfall_rule(Workstation& ws);

// ---- Phenomenon pickers ----
// The present weather code ww chosen on the board, -1 when none is chosen.
int present_weather_code(Workstation& ws);
// The iR iX picker; clear_ir empties its TXTIR first.
void open_irix_picker(Workstation& ws, bool clear_ir);
// The remarks step of a SYNOP kind: FrmBCOY, FrmBCO, FrmFeali in turn.
void open_remarks_pickers(Workstation& ws);
// FrmFeali for the METAR present weather, at once (a low visibility).
void open_present_weather_picker(Workstation& ws);
// FrmZamin, the state of ground.
void open_ground_picker(Workstation& ws);

// ---- Pressure tendency ----
// FrmNTF, opened by Enter on the barometer box for the SYNOP kinds.
void open_tendency_dialog(Workstation& ws);

// ---- Archive ----
// FrmWP, the past hours editor, from the start screen.
void open_past_hours_editor(Workstation& ws);
// FrmPol, the copy-out dialog, at the end of a save.
void open_copy_out(Workstation& ws);
// FrmFind, the search dialog: the text it returns ("" when closed without "Find")
// is handed to the continuation when the dialog closes.
void open_find_dialog(Workstation& ws, std::function<void(Workstation&, const std::string&)> on_text);

}  // namespace obsdesk
