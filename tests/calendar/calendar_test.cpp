// The two calendars: the system's table of month offsets, its sticky leap flags
// and its kept wrong answers, checked against an arithmetic Persian calendar.
#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <tuple>

#include "calendar/names.h"

namespace obsdesk {
namespace {

using Date = std::tuple<int, int, int>;

Date to_shamsi(CalendarState& s, int y, int m, int d) {
  gregorian_to_shamsi(s, y, m, d);
  return {s.SYear, s.SMonth, s.SDay};
}

Date to_gregorian(CalendarState& s, int y, int m, int d) {
  shamsi_to_gregorian(s, y, m, d);
  return {s.GYear, s.GMonth, s.GDay};
}

struct Case {
  Date in, out;
};

// Each day from 1990 to 2040 is checked one by one below; these are the
// dates outside it: a century year that is no leap year, and a 30th of Esfand
// that does not exist, which nothing clears.
TEST(Calendar, DatesOutsideTheDayByDayRange) {
  const Case to_sh[] = {{{2100, 3, 20}, {1478, 12, 29}}, {{2100, 3, 21}, {1479, 1, 1}}};
  for (const Case& c : to_sh) {
    CalendarState s;
    const auto [y, m, d] = c.in;
    EXPECT_EQ(to_shamsi(s, y, m, d), c.out) << y << "-" << m << "-" << d;
  }
  CalendarState s;
  EXPECT_EQ(to_gregorian(s, 1400, 12, 30), Date(2022, 3, 21));
}

// The leap flags outlive each call: a flag is only ever set by a year that is
// divisible by 4, so the next years keep what the last such year left.
TEST(Calendar, LeapFlagsStickBetweenCalls) {
  {
    CalendarState s;
    to_shamsi(s, 2024, 5, 1);
    EXPECT_EQ(s.GLeapThis, 1);
    EXPECT_EQ(to_shamsi(s, 2025, 5, 1), Date(1404, 2, 12));  // fresh: 11 Ordibehesht
    EXPECT_EQ(to_shamsi(s, 2026, 1, 1), Date(1404, 10, 12));  // GLeapPrev of 2024 still set
    EXPECT_EQ(to_shamsi(s, 2028, 5, 1), Date(1407, 2, 12));
    to_shamsi(s, 2100, 5, 1);  // a century year clears it
    EXPECT_EQ(s.GLeapThis, 0);
    EXPECT_EQ(to_shamsi(s, 2101, 5, 1), Date(1480, 2, 11));
  }
  {
    CalendarState fresh, fresh2;
    EXPECT_EQ(to_shamsi(fresh, 2025, 5, 1), Date(1404, 2, 11));
    EXPECT_EQ(to_shamsi(fresh2, 2026, 1, 1), Date(1404, 10, 11));
  }
  {
    CalendarState s;
    to_gregorian(s, 1402, 1, 1);  // sets SLeapB (1404 is divisible by 4)
    EXPECT_EQ(s.SLeapB, 1);
    // SLeapA is 1 for 1403, so SLeapB is left as it was: February of 29 days.
    EXPECT_EQ(to_gregorian(s, 1403, 12, 30), Date(2025, 3, 19));
    to_gregorian(s, 1401, 1, 1);  // (1401 + 2) is not divisible by 4
    EXPECT_EQ(s.SLeapB, 0);
    EXPECT_EQ(to_gregorian(s, 1403, 12, 30), Date(2025, 3, 20));
  }
  {
    CalendarState s;  // the save's reset of two flags leaves the two others
    to_shamsi(s, 2024, 5, 1);
    s.GLeapThis = 0;
    s.SLeapA = 0;
    EXPECT_EQ(s.GLeapPrev, 0);
    EXPECT_EQ(to_shamsi(s, 2025, 5, 1), Date(1404, 2, 11));
  }
}

TEST(Calendar, AMonthOutsideOneToTwelveLeavesTheResult) {
  for (int month : {0, 13}) {
    CalendarState s;
    to_shamsi(s, 2023, 3, 21);
    EXPECT_EQ(to_shamsi(s, 2024, month, 5), Date(1402, 1, 1)) << month;
    to_gregorian(s, 1402, 1, 1);
    EXPECT_EQ(to_gregorian(s, 1403, month, 5), Date(2023, 3, 21)) << month;
  }
}

// ---- An independent Persian calendar: the 33-year arithmetic cycle, which
//      matches the calendar in use over these years. ----

bool persian_leap(int y) {
  switch (y % 33) {
    case 1: case 5: case 9: case 13: case 17: case 22: case 26: case 30: return true;
    default: return false;
  }
}

// Days since 1970-01-01 of a Gregorian date; a day past the month's end counts
// on into the next month (31 November is 1 December).
long civil_days(int y, int m, int d) {
  y -= m <= 2;
  const long era = (y >= 0 ? y : y - 399) / 400;
  const long yoe = y - era * 400;
  const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

const long kNowruz1369 = civil_days(1990, 3, 21);

// Days since 1970-01-01 of a Persian date, counted on past a month's end.
long persian_days(int y, int m, int d) {
  long n = kNowruz1369;
  for (int k = 1369; k < y; ++k) n += persian_leap(k) ? 366 : 365;
  for (int k = y; k < 1369; ++k) n -= persian_leap(k) ? 366 : 365;
  for (int k = 1; k < m; ++k) n += k <= 6 ? 31 : 30;
  return n + d - 1;
}

Date persian_of(long days) {
  int y = 1369;
  long n = days - kNowruz1369;
  while (n < 0) n += persian_leap(--y) ? 366 : 365;
  while (n >= (persian_leap(y) ? 366 : 365)) n -= persian_leap(y++) ? 366 : 365;
  int m = 1;
  for (;; ++m) {
    const int length = m <= 6 ? 31 : (m <= 11 ? 30 : (persian_leap(y) ? 30 : 29));
    if (n < length) break;
    n -= length;
  }
  return {y, m, static_cast<int>(n) + 1};
}

Date gregorian_of(long days) {
  // Inverse of civil_days.
  days += 719468;
  const long era = (days >= 0 ? days : days - 146096) / 146097;
  const long doe = days - era * 146097;
  const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const long mp = (5 * doy + 2) / 153;
  const int d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const int m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  return {static_cast<int>(yoe + era * 400 + (m <= 2)), m, d};
}

// The Persian years in which the table, tied to the Gregorian leap years, and
// the 33-year cycle place Nowruz a day apart: the table's Persian date runs a
// day ahead (+1) or behind (-1) for the whole year. Gregorian first and last day.
struct Span {
  Date from, to;
  int shift;
};
const Span kToShamsi[] = {
    {{1992, 3, 20}, {1993, 3, 20}, +1},  // 1370 is a leap year of the cycle
    {{2029, 3, 21}, {2030, 3, 20}, -1},  // 1408, 1412, 1416 are, after five years
    {{2033, 3, 21}, {2034, 3, 20}, -1},
    {{2037, 3, 21}, {2038, 3, 20}, -1},
};
// The cycle's Nowruz of 1408, 1412 and 1416, which the table writes as the 30th
// of Esfand of the year before.
const Date kEsfand30[] = {{2029, 3, 20}, {2033, 3, 20}, {2037, 3, 20}};
const Span kToGregorian[] = {
    {{1992, 3, 21}, {1993, 3, 20}, -1},
    {{2029, 3, 20}, {2030, 3, 20}, +1},
    {{2033, 3, 20}, {2034, 3, 20}, +1},
    {{2037, 3, 20}, {2038, 3, 20}, +1},
};

int expected_shift(const Span (&spans)[4], long day) {
  for (const Span& s : spans) {
    const auto [fy, fm, fd] = s.from;
    const auto [ty, tm, td] = s.to;
    if (day >= civil_days(fy, fm, fd) && day <= civil_days(ty, tm, td)) return s.shift;
  }
  return 0;
}

TEST(Calendar, EveryDayFrom1990To2040AgreesWithTheArithmeticCalendar) {
  int checked = 0, shifted = 0, november31 = 0;
  for (long day = civil_days(1990, 1, 1); day <= civil_days(2040, 12, 31); ++day) {
    const auto [gy, gm, gd] = gregorian_of(day);
    const auto [py, pm, pd] = persian_of(day);

    CalendarState s1;
    const auto [sy, sm, sd] = to_shamsi(s1, gy, gm, gd);
    ASSERT_GE(sm, 1);
    ASSERT_LE(sm, 12);
    ASSERT_GE(sd, 1);
    ASSERT_LE(sd, 31);
    const int shift = expected_shift(kToShamsi, day);
    ASSERT_EQ(persian_days(sy, sm, sd) - day, shift) << gy << "-" << gm << "-" << gd;
    if (shift == 0) {
      if (std::find(std::begin(kEsfand30), std::end(kEsfand30), Date(gy, gm, gd)) != std::end(kEsfand30)) {
        ASSERT_EQ(Date(sy, sm, sd), Date(py - 1, 12, 30));
        ++shifted;
      } else {
        ASSERT_EQ(Date(sy, sm, sd), Date(py, pm, pd)) << gy << "-" << gm << "-" << gd;
      }
    } else {
      ++shifted;
    }

    CalendarState s2;
    const auto [ry, rm, rd] = to_gregorian(s2, py, pm, pd);
    const int back = expected_shift(kToGregorian, day);
    ASSERT_EQ(civil_days(ry, rm, rd) - day, back) << py << "/" << pm << "/" << pd;
    if (back == 0 && Date(ry, rm, rd) != Date(gy, gm, gd)) {
      // The one kept wrong answer: 1 December written as 31 November (Azar).
      ASSERT_EQ(Date(gm, gd, rm), Date(12, 1, 11)) << py << "/" << pm << "/" << pd;
      ASSERT_EQ(rd, 31);
      ++november31;
    }
    ++checked;
  }
  EXPECT_EQ(checked, 18628);
  EXPECT_EQ(shifted, 4 * 366);
  EXPECT_EQ(november31, 51 - 4);  // once a year, but in the four years a day apart
}

// ---- Month names ----

TEST(Calendar, MonthNumAnswersNamesAndNumbersAndKeepsItsLastResult) {
  CalendarState s;
  struct Step {
    std::string_view in;
    int mode;
    std::string_view out;
  };
  const Step steps[] = {
      {"JAN", 0, "01"},     {"فروردين", 1, "01"}, {"اسفند", 0, "12"}, {"1", 0, "فروردين"}, {"9", 1, "SEP"},
      {"09", 1, "SEP"},     {"12", 0, "اسفند"},
      {"13", 0, "اسفند"},   // anything else: the previous result
      {"Jan", 1, "اسفند"},  // the entry form's spelling is not a name here
      {"MAY", 7, "05"},     // a name needs no mode
      {"3", 2, "05"},       // a number needs mode 0 or 1
      {"ماه", 1, "05"},
  };
  for (const Step& st : steps) EXPECT_EQ(Module_Month_Num(s, st.in, st.mode), st.out) << st.in;
  CalendarState fresh;
  EXPECT_EQ(Module_Month_Num(fresh, "abc", 0), "");
}

TEST(Calendar, MonthOfADateBox) {
  const std::pair<std::string_view, int> table[] = {
      {"3", 3}, {" 11 ", 11}, {"Jan", 1}, {"dec", 12}, {"مهر", 7}, {"13", 13}, {"", 0}, {"3a", 0}, {"Janu", 0}};
  for (const auto& [text, month] : table) EXPECT_EQ(month_of_text(text), month) << text;
}

TEST(Calendar, WeekdaysOfRealDatesOnly) {
  const std::tuple<int, int, int, std::string_view> days[] = {
      {2024, 3, 20, "Wednesday"}, {2023, 2, 29, ""}, {2100, 2, 29, ""}, {2000, 2, 29, "Tuesday"},
      {2023, 11, 31, ""},         {2023, 0, 1, ""}};
  for (const auto& [y, m, d, name] : days) EXPECT_EQ(weekday_name(y, m, d), name) << y << m << d;
}

}  // namespace
}  // namespace obsdesk
