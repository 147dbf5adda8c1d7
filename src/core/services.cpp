#include "core/services.h"

#include <cstdio>
#include <ctime>

namespace obsdesk {

DateTime SystemClock::now() {
  const std::time_t t = std::time(nullptr);
  std::tm tm{};
  localtime_r(&t, &tm);
  return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

bool parse_date_time(const std::string& text, DateTime& out) {
  DateTime t;
  char tail = 0;
  const int n = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%c", &t.year, &t.month, &t.day,
                            &t.hour, &t.minute, &t.second, &tail);
  if (n != 5 && n != 6) return false;
  if (n == 5) t.second = 0;
  static const int days[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (t.year < 1 || t.year > 9999 || t.month < 1 || t.month > 12 || t.day < 1 ||
      t.day > days[t.month - 1] || t.hour < 0 || t.hour > 23 || t.minute < 0 || t.minute > 59 ||
      t.second < 0 || t.second > 59)
    return false;
  const bool leap = (t.year % 4 == 0 && t.year % 100 != 0) || t.year % 400 == 0;
  if (t.month == 2 && t.day == 29 && !leap) return false;
  out = t;
  return true;
}

}  // namespace obsdesk
