#include "checks/limits.h"

#include "checks/temperature_words.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

bool is_reading(const std::string& text) {
  return !(text.empty() || text == "-" || text == "." || text == "-." || text == "/" || text == "//");
}

bool within_hard(Desk& ws, Control& box, double v, int row, const char* words) {
  const FrmOption::LimitRow& r = ws.FrmOption.limit.at(static_cast<std::size_t>(row));
  if (v >= val(r.minm->text) && v <= val(r.maxm->text)) return true;
  refuse(ws, box, words);
  return false;
}

bool within_soft(Desk& ws, Control& box, double v, int row, const char* question) {
  const FrmOption::LimitRow& r = ws.FrmOption.limit.at(static_cast<std::size_t>(row));
  if (v >= val(r.min->text) && v <= val(r.max->text)) return true;
  if (ws.ask(question)) return true;
  refuse(ws, box);
  return false;
}

bool thermometer_text_ok(const std::string& text, bool slash_ok) {
  if (text.empty() || text == "." || text == "-" || text == "-.") return true;
  if (slash_ok && text == "/") return true;
  const std::size_t n = len(text);
  if (n > 5) return false;
  int points = 0;
  for (std::size_t i = 1; i <= n; ++i) {
    const std::string ch = char_at(text, i);
    if (!(is_digit(ch) || ch == "-" || ch == "." || ch == ansi_char(250))) return false;
    if (ch == "." && i <= 4 && ++points > 1) return false;
  }
  return true;
}

void thermometer_typing(Desk& ws, Control& box, bool slash_ok) {
  if (thermometer_text_ok(box.text, slash_ok)) return;
  refuse(ws, box, words::kCheckTemperature);
}

}  // namespace obsdesk
