// The observation session: one life of the entry screen FrmKashf, from the
// browser's new report to the confirmation. Its opening, the hour box, the groups
// shown by hour, the Enter walk of the form, the remarks step, the re-edit of the
// thermometers and the observer's name that opens "تاييد".
#pragma once

#include <string>
#include <string_view>

namespace obsdesk {

class Workstation;
struct Control;

// A refusal: the words on the message panel, the box emptied, the focus back to it.
void refuse(Workstation& ws, Control& box, const std::string& words);

// The report kind in use, as Combo5 shows it, blanks included.
const std::string& report_kind(const Workstation& ws);
// The hour box Text1 as typed ("03", "3", "21", ...).
const std::string& hour_text(const Workstation& ws);
// True when the hour box shows one of the given hours, compared as text.
bool hour_is(const Workstation& ws, std::initializer_list<std::string_view> hours);
// The station kind of the profile ("ايستگاه 12 ساعته" ...).
const std::string& station_kind(const Workstation& ws);
// A 12-hour station at 18, 21 or 00 UTC: only the dry bulb is read.
bool twelve_hour_night(const Workstation& ws);

// What the remarks box does on Enter: the weather pickers or the question.
void Text74_key_enter(Workstation& ws);

void wire_session(Workstation& ws);
// The Enter walk of the boxes with one fixed successor, and the remarks step.
void wire_session_walk(Workstation& ws);

}  // namespace obsdesk
