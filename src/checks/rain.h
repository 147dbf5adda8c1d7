// Rainfall and the pressure tendency on the entry screen: the rain boxes, the
// rain table of the day and its sums, and the tendency boxes Text38 and Text25.
#pragma once

#include <array>
#include <string>

namespace obsdesk {

class Desk;
struct Control;

// The eight readings of the day, by main hour 00, 03, ... 21: a number, "TR"
// (a trace) or "/" (not available).
using RainTable = std::array<std::string, 8>;

// Sum of the readings of the listed main hours (0, 3, ... 21), in that order.
// A "/" among them makes the sum "/"; a trace counts as 0, and a sum of 0 with a
// trace among its terms is "TR".
std::string rain_sum(const RainTable& table, std::initializer_list<int> hours);

// The six-hour rain at 00, 06, 12 and 18 UTC; "" at other hours. night_reading
// adds the reading of 15 to the sum of 06 (a 12-hour station, whose night has
// no readings).
std::string six_hour_rain(const RainTable& table, int hour, bool night_reading);

// The UTC hour typed in Text1, -1 when it is empty.
int entry_hour(const Desk& ws);

void wire_rain(Desk& ws);

}  // namespace obsdesk
