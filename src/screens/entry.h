// The entry screen as the rules read it (the report kind, the hour, the station's
// kind) and what a rule does to a box it refuses.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace obsdesk {

class Desk;
struct Control;

// A refusal: the words on the message panel (none when empty), the box emptied,
// the focus back to it.
void refuse(Desk& ws, Control& box, const std::string& words = {});

// The report kind in use, as Combo5 shows it, blanks included.
const std::string& report_kind(const Desk& ws);
// The hour box Text1 as typed ("03", "3", "21", ...).
const std::string& hour_text(const Desk& ws);
// True when the hour box shows one of the given hours, compared as text.
bool hour_is(const Desk& ws, std::initializer_list<std::string_view> hours);
// The station kind of the profile ("ايستگاه 12 ساعته" ...).
const std::string& station_kind(const Desk& ws);
// The profile names a 12-hour station.
bool twelve_hour_station(const Desk& ws);
// A 12-hour station at 18, 21 or 00 UTC: only the dry bulb is read.
bool twelve_hour_night(const Desk& ws);

// Every coder the report kind needs has run: SYNOP for "SYNOP", METAR for
// both METAR kinds, SPECI for "SPECI", SYNOP and METAR for "SYN & MET".
bool report_kind_coded(const Desk& ws);

// The station heading: Sname, two blanks, Txtcod, two blanks, NumCod.
std::string station_heading(const Desk& ws);

}  // namespace obsdesk
