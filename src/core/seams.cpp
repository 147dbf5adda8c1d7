#include "core/seams.h"

namespace obsdesk {

// Not built yet: each does nothing until its topic replaces it.
void apply_hour_rules(Workstation&) {}
void open_irix_picker(Workstation&) {}
void open_past_hours_editor(Workstation&) {}

}  // namespace obsdesk
