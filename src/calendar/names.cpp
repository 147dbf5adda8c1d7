#include "calendar/names.h"

#include "core/textnum.h"

namespace obsdesk {

const std::array<std::string_view, 12>& gregorian_month_names() {
  static const std::array<std::string_view, 12> names = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  return names;
}

const std::array<std::string_view, 12>& gregorian_month_names_upper() {
  static const std::array<std::string_view, 12> names = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                         "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
  return names;
}

const std::array<std::string_view, 12>& shamsi_month_names() {
  static const std::array<std::string_view, 12> names = {"فروردين", "ارديبهشت", "خرداد", "تير", "مرداد", "شهريور", "مهر", "آبان", "آذر", "دي", "بهمن", "اسفند"};
  return names;
}

namespace {

// The position 1 to 12 of a text in a list of names, 0 when it is not there.
int position(const std::array<std::string_view, 12>& names, std::string_view text) {
  for (std::size_t i = 0; i < names.size(); ++i)
    if (names[i] == text) return static_cast<int>(i) + 1;
  return 0;
}

// A whole number 1 to 12 written in digits, blanks around allowed; 0 otherwise.
int month_number(std::string_view text) {
  const std::string t = trim(text);
  if (t.empty() || t.size() > 2) return 0;
  for (char c : t)
    if (c < '0' || c > '9') return 0;
  const int n = std::stoi(t);
  return (n >= 1 && n <= 12) ? n : 0;
}

}  // namespace

std::string Module_Month_Num(CalendarState& s, std::string_view month, int mode) {
  if (int n = position(gregorian_month_names_upper(), month); n != 0) {
    s.month_name_result = lead_zero(std::to_string(n));
  } else if (n = position(shamsi_month_names(), month); n != 0) {
    s.month_name_result = lead_zero(std::to_string(n));
  } else if (n = month_number(month); n != 0 && (mode == 0 || mode == 1)) {
    s.month_name_result = std::string(mode == 0 ? shamsi_month_names()[n - 1] : gregorian_month_names_upper()[n - 1]);
  }
  return s.month_name_result;
}

int month_of_text(std::string_view text) {
  if (int n = position(gregorian_month_names_upper(), upper(text)); n != 0) return n;
  if (int n = position(shamsi_month_names(), text); n != 0) return n;
  const std::string t = trim(text);
  if (!is_numeric(t)) return 0;
  return int_val(t);
}

std::string weekday_name(int year, int month, int day) {
  static const char* const names[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
  static const int days_in[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1) return {};
  const int last = days_in[month - 1] + (month == 2 && gregorian_leap(year) ? 1 : 0);
  if (day > last) return {};
  // Sakamoto's rule: 0 is Sunday.
  static const int t[] = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
  const int y = month < 3 ? year - 1 : year;
  return names[(y + y / 4 - y / 100 + y / 400 + t[month - 1] + day) % 7];
}

std::string lead_zero(std::string_view text) {
  return len(text) == 1 ? "0" + std::string(text) : std::string(text);
}

}  // namespace obsdesk
