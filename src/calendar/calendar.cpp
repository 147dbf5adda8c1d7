#include "calendar/calendar.h"

namespace obsdesk {

bool gregorian_leap(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

namespace {

// The leap flags of the Gregorian side are only ever set for a year divisible by
// 4; any other year leaves them as the last such year set them.
void test_leap(int year, int& flag) {
  if (year % 4 == 0) flag = gregorian_leap(year) ? 1 : 0;
}

}  // namespace

void gregorian_to_shamsi(CalendarState& s, int y, int m, int d) {
  test_leap(y, s.GLeapThis);
  test_leap(y - 1, s.GLeapPrev);
  const int L = s.GLeapThis, P = s.GLeapPrev;
  struct Row {
    int year_offset, day_add, month, limit, next_month;
  };
  // Persian year Y + offset, day D + add (+ leap terms), month; past the limit the
  // day rolls into the next month.
  static const Row rows[13] = {{},
                               {-622, 10, 10, 30, 11}, {-622, 11, 11, 30, 12}, {-622, 9, 12, 0, 1},
                               {-621, 11, 1, 31, 2},   {-621, 10, 2, 31, 3},   {-621, 10, 3, 31, 4},
                               {-621, 9, 4, 31, 5},    {-621, 9, 5, 31, 6},    {-621, 9, 6, 31, 7},
                               {-621, 8, 7, 30, 8},    {-621, 9, 8, 30, 9},    {-621, 9, 9, 30, 10}};
  if (m < 1 || m > 12) return;
  const Row& r = rows[m];
  int year = y + r.year_offset;
  int day = d + r.day_add;
  int month = r.month;
  int limit = r.limit;
  if (m <= 2) {
    day += P;
  } else if (m == 3) {
    day += L + P;
    limit = P + 29;
  } else {
    day += L;
  }
  if (day > limit) {
    day -= limit;
    month = r.next_month;
    if (m == 3) year = y - 621;
  }
  s.SYear = year;
  s.SMonth = month;
  s.SDay = day;
}

void shamsi_to_gregorian(CalendarState& s, int y, int m, int d) {
  if ((y + 1) % 4 == 0) {
    s.SLeapA = 1;
  } else {
    s.SLeapA = 0;
    s.SLeapB = ((y + 2) % 4 == 0) ? 1 : 0;
  }
  const int A = s.SLeapA, B = s.SLeapB;
  struct Row {
    int year_offset, day_add, limit, month, next_month, take;
  };
  // Gregorian year Y + offset, day D + add - A; past the limit the month moves on
  // and "take" days are taken away. Month 9 tests 31 but takes 30: kept as the
  // station's registers expect, since the dates already archived were computed
  // so and a search must find them under the same key.
  static const Row rows[13] = {{},
                               {621, 20, 31, 3, 4, 31},  {621, 20, 30, 4, 5, 30},  {621, 21, 31, 5, 6, 31},
                               {621, 21, 30, 6, 7, 30},  {621, 22, 31, 7, 8, 31},  {621, 22, 31, 8, 9, 31},
                               {621, 22, 30, 9, 10, 30}, {621, 22, 31, 10, 11, 31}, {621, 21, 31, 11, 12, 30},
                               {621, 21, 31, 12, 1, 31}, {622, 20, 31, 1, 2, 31},  {622, 19, 28, 2, 3, 28}};
  if (m < 1 || m > 12) return;
  const Row& r = rows[m];
  int year = y + r.year_offset;
  int day = d + r.day_add - A;
  int month = r.month;
  int limit = r.limit;
  int take = r.take;
  if (m == 12) {
    limit += B;
    take += B;
  }
  if (day > limit) {
    day -= take;
    month = r.next_month;
    if (m == 10) year = y + 622;
  }
  s.GYear = year;
  s.GMonth = month;
  s.GDay = day;
}

}  // namespace obsdesk
