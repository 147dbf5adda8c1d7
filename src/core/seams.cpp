#include "core/seams.h"

#include "core/workstation.h"

namespace obsdesk {

// Each stub stands until its topic is built; the topic then removes it here and
// defines the function beside its own rules.
int present_weather_code(Workstation&) { return -1; }

void open_irix_picker(Workstation&, bool) {}

void open_remarks_pickers(Workstation&) {}

void open_present_weather_picker(Workstation&) {}

void open_ground_picker(Workstation&) {}


}  // namespace obsdesk
