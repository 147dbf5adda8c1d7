#include "calendar/date_boxes.h"

#include "calendar/names.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

// A date part as a number: empty reads 0; other text that is no number gives up.
bool part(const std::string& text, int& out) {
  const std::string t = trim(text);
  if (t.empty()) {
    out = 0;
    return true;
  }
  if (!is_numeric(t)) return false;
  out = int_val(t);
  return true;
}

}  // namespace

void gregorian_date_key_up(Desk& ws, bool key_in_day) {
  FrmKashf& k = ws.FrmKashf;
  if (k.TXTDAYmi.text.empty() || k.TXTMONTHMI.text.empty() || k.TXTYEARmi.text.empty()) return;
  int y = 0, d = 0;
  const int m = month_of_text(k.TXTMONTHMI.text);
  if (!part(k.TXTYEARmi.text, y) || !part(k.TXTDAYmi.text, d) || m == 0) return;
  CalendarState& c = ws.calendar;
  gregorian_to_shamsi(c, y, m, d);
  ws.set(k.TXTMONTHSH, lead_zero(std::to_string(c.SMonth)));
  ws.set(k.TXTYEARsh, std::to_string(c.SYear));
  ws.set(k.TXTDAYsh, lead_zero(std::to_string(c.SDay)));
  const int leap = key_in_day ? 0 : c.GLeapThis;
  const bool impossible = (m == 2 && d > 28 + leap) || (d == 31 && (m == 4 || m == 6 || m == 9 || m == 11)) || d > 31;
  if (impossible)
    for (Control* box : Controls{&k.TXTYEARsh, &k.TXTMONTHSH, &k.TXTDAYsh}) ws.set(*box, "");
}

void shamsi_date_key_up(Desk& ws, const Control& changed) {
  FrmKashf& k = ws.FrmKashf;
  if (changed.text.empty()) return;
  int y = 0, d = 0;
  int m = month_of_text(k.TXTMONTHSH.text);
  if (!part(k.TXTYEARsh.text, y) || !part(k.TXTDAYsh.text, d)) return;
  if (m == 0 && !part(k.TXTMONTHSH.text, m)) return;
  CalendarState& c = ws.calendar;
  shamsi_to_gregorian(c, y, m, d);
  ws.set(k.TXTMONTHMI, lead_zero(std::to_string(c.GMonth)));  // the table's months are two figures
  ws.set(k.TXTYEARmi, std::to_string(c.GYear));
  ws.set(k.TXTDAYmi, lead_zero(std::to_string(c.GDay)));
  if (d > 31)
    for (Control* box : Controls{&k.TXTMONTHMI, &k.TXTYEARmi, &k.TXTDAYmi}) ws.set(*box, "");
}

void date_box_leave(Desk& ws, Control& box) {
  if (len(box.text) == 1) ws.set(box, "0" + box.text);
}

void wire_date_boxes(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (Control* c : Controls{&k.TXTDAYmi, &k.TXTMONTHMI, &k.TXTYEARmi}) {
    const bool in_day = c == &k.TXTDAYmi;
    c->on(Event::KeyUp, [in_day](Desk& w) { gregorian_date_key_up(w, in_day); });
  }
  for (Control* c : Controls{&k.TXTDAYsh, &k.TXTMONTHSH, &k.TXTYEARsh})
    c->on(Event::KeyUp, [c](Desk& w) { shamsi_date_key_up(w, *c); });
  for (Control* c : Controls{&k.TXTDAYmi, &k.TXTMONTHMI, &k.TXTDAYsh, &k.TXTMONTHSH})
    c->on(Event::Leave, [c](Desk& w) { date_box_leave(w, *c); });
}

}  // namespace obsdesk
