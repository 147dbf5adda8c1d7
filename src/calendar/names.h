// The names of the months of both calendars and of the weekdays, and the month
// helper that turns a name into its number and a number into its name.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "calendar/calendar.h"

namespace obsdesk {

// Gregorian months as the entry form writes them ("Jan") and as the search form
// writes them ("JAN"); the Persian months from Farvardin to Esfand.
const std::array<std::string_view, 12>& gregorian_month_names();
const std::array<std::string_view, 12>& gregorian_month_names_upper();
const std::array<std::string_view, 12>& shamsi_month_names();

// Module_Month_Num: a month name ("JAN" to "DEC", or Persian) gives its number
// as two digits, "01" to "12"; a number 1 to 12 gives the Persian name with mode
// 0 and the upper-case English name with mode 1. Anything else gives the result
// of the previous call, which the calendar state keeps.
std::string Module_Month_Num(CalendarState& s, std::string_view month, int mode);

// The month a date box holds: a number as it reads, or a month name of either
// calendar ("Jan", "JAN" and "jan" alike); 0 when the text is neither.
int month_of_text(std::string_view text);

// The weekday of a Gregorian date written out ("Monday"); empty when there is
// no such date (31 November, 29 February of a common year).
std::string weekday_name(int year, int month, int day);

// A leading "0" for a text of one character ("5" to "05"); others stay.
std::string lead_zero(std::string_view text);

}  // namespace obsdesk
