// Points where one topic hands over to a screen or rule of another topic. Each
// is one function; a topic that is not built yet leaves it doing nothing.
#pragma once

namespace obsdesk {

class Workstation;

// The groups shown by the hour of the observation, applied after the report
// kind's rule has run.
void apply_hour_rules(Workstation& ws);

// The iR iX picker, opened when a SYNOP kind is chosen.
void open_irix_picker(Workstation& ws);

// The past hours editor, from the start screen.
void open_past_hours_editor(Workstation& ws);

}  // namespace obsdesk
