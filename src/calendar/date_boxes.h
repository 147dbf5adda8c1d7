// The two date groups of the entry screen: a key released in one group converts
// the date into the other.
#pragma once

namespace obsdesk {

class Desk;
struct Control;

// A key released in TXTDAYmi, TXTMONTHMI or TXTYEARmi (key_in_day: in the day
// box). With all three filled, the Persian boxes get the date; a Gregorian date
// that cannot be (30 February, 31 April, a day above 31) clears them. From the
// day box the 29th of February is cleared in every year, leap or not: kept as
// the observers know it, who then type the date from the Persian boxes.
void gregorian_date_key_up(Desk& ws, bool key_in_day);

// A key released in TXTDAYsh, TXTMONTHSH or TXTYEARsh (changed: that box). The
// Gregorian boxes get the date; a Persian day above 31 clears them.
void shamsi_date_key_up(Desk& ws, const Control& changed);

// Leaving TXTDAYmi, TXTMONTHMI, TXTDAYsh or TXTMONTHSH: one character gets a
// leading "0".
void date_box_leave(Desk& ws, Control& box);

// Binds the three rules to the six date boxes of the entry screen.
void wire_date_boxes(Desk& ws);

}  // namespace obsdesk
