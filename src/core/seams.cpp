#include "core/seams.h"

#include "core/workstation.h"

namespace obsdesk {

// Each stub stands until its topic is built; the topic then removes it here and
// defines the function beside its own rules.
void apply_hour_rules(Workstation&) {}

void fill_today(Workstation&) {}
bool cloud_height_ok(Workstation&, Control&) { return true; }

void rainfall_rule(Workstation&) {}
int present_weather_code(Workstation&) { return -1; }

void open_irix_picker(Workstation&, bool) {}

void open_remarks_pickers(Workstation&) {}

void open_present_weather_picker(Workstation&) {}

void open_ground_picker(Workstation&) {}

void open_past_hours_editor(Workstation&) {}

void open_copy_out(Workstation&) {}

void open_find_dialog(Workstation& ws, std::function<void(Workstation&, const std::string&)> on_text) {
  on_text(ws, "");
}

}  // namespace obsdesk
