// The observation session: one life of the entry screen FrmKashf, from the
// browser's new report to the confirmation. Its opening, the hour box, the groups
// shown by hour, the Enter walk of the form, the remarks step, the re-edit of the
// thermometers and the observer's name that opens "تاييد".
#pragma once

#include <string>
#include <string_view>

namespace obsdesk {

class Desk;
struct Control;

// What the remarks box does on Enter: the weather pickers or the question.
void Text74_key_enter(Desk& ws);

void wire_session(Desk& ws);
// The Enter walk of the boxes with one fixed successor, and the remarks step.
void wire_session_walk(Desk& ws);

// The groups shown by the hour of the observation; run after the report kind's
// rule and on every change of the hour.
void apply_hour_rules(Desk& ws);
// Today's date from the computer's clock into the six date boxes of the entry
// screen, Persian by the conversion, with the clearing tests of the opening.
void fill_today(Desk& ws);

}  // namespace obsdesk
