#include "core/seams.h"

#include "core/workstation.h"

namespace obsdesk {

// Each stub stands until its topic is built; the topic then removes it here and
// defines the function beside its own rules.
void apply_hour_rules(Workstation&) {}

void fill_today(Workstation&) {}
bool cloud_height_ok(Workstation&, Control&) { return true; }

void rainfall_rule(Workstation&) {}
void open_tendency_dialog(Workstation&) {}

void open_past_hours_editor(Workstation&) {}

void open_copy_out(Workstation&) {}

void open_find_dialog(Workstation& ws, std::function<void(Workstation&, const std::string&)> on_text) {
  on_text(ws, "");
}

}  // namespace obsdesk
