// Gregorian and Persian (Shamsi) dates, converted by the system's own table of
// per-month offsets and four leap flags that outlive every call. The table gives
// a few wrong answers on purpose (10 Azar 1402 is 2023-11-31): they are part of
// the design and stay.
#pragma once

#include <string>

#include "screens/shared_values.h"

namespace obsdesk {

// Sets SYear, SMonth, SDay; a month outside 1 to 12 leaves them as they were.
void gregorian_to_shamsi(CalendarState& s, int year, int month, int day);
// Sets GYear, GMonth, GDay; a month outside 1 to 12 leaves them as they were.
void shamsi_to_gregorian(CalendarState& s, int year, int month, int day);

// The Gregorian leap rule: divisible by 4, and by 100 only when also by 400.
bool gregorian_leap(int year);

}  // namespace obsdesk
