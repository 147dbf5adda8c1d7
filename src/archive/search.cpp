#include "archive/search.h"

#include <functional>

#include "calendar/names.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {


namespace {

// A whole number typed in a date box; false for an empty or other text.
bool number_of(const std::string& text, int& out) {
  const std::string t = trim(text);
  if (t.empty() || !is_numeric(t)) return false;
  out = int_val(t);
  return true;
}

// The weekday and the search text from the Gregorian boxes and the hour: two
// figures of the year, then month, day and hour with their leading zeros. An
// empty hour leaves the text at the day, which finds its first report.
void show_key(Desk& ws) {
  FrmFind& f = ws.FrmFind;
  int y = 0, d = 0;
  const int m = month_of_text(f.ComMI.text);
  if (number_of(f.TXTYEARmi.text, y) && number_of(f.TXTDAYmi.text, d))
    ws.set(f.TXTDAYWEEK, weekday_name(y, m, d));
  const std::string month = m >= 1 && m <= 12 ? lead_zero(std::to_string(m)) : trim(f.ComMI.text);
  ws.set(f.Txtfind, mid(trim(f.TXTYEARmi.text), 3, 2) + month + lead_zero(trim(f.TXTDAYmi.text)) +
                        lead_zero(trim(f.txttime.text)));
}

// A change in one calendar fills the other. Text that is no date leaves the
// boxes as they are.
void from_gregorian(Desk& ws) {
  FrmFind& f = ws.FrmFind;
  if (f.updating) return;
  f.updating = true;
  int y = 0, d = 0;
  const int m = month_of_text(f.ComMI.text);
  if (number_of(f.TXTYEARmi.text, y) && number_of(f.TXTDAYmi.text, d) && m >= 1 && m <= 12) {
    CalendarState& c = ws.calendar;
    gregorian_to_shamsi(c, y, m, d);
    ws.set(f.TXTYEARsh, std::to_string(c.SYear));
    if (c.SMonth >= 1 && c.SMonth <= 12) ws.set(f.ComSH, std::string(shamsi_month_names()[c.SMonth - 1]));
    ws.set(f.TXTDAYsh, lead_zero(std::to_string(c.SDay)));
    show_key(ws);
  }
  f.updating = false;
}

void from_shamsi(Desk& ws) {
  FrmFind& f = ws.FrmFind;
  if (f.updating) return;
  f.updating = true;
  int y = 0, d = 0;
  const int m = month_of_text(f.ComSH.text);
  if (number_of(f.TXTYEARsh.text, y) && number_of(f.TXTDAYsh.text, d) && m >= 1 && m <= 12) {
    CalendarState& c = ws.calendar;
    shamsi_to_gregorian(c, y, m, d);
    ws.set(f.TXTYEARmi, std::to_string(c.GYear));
    if (c.GMonth >= 1 && c.GMonth <= 12) ws.set(f.ComMI, std::string(gregorian_month_names_upper()[c.GMonth - 1]));
    ws.set(f.TXTDAYmi, lead_zero(std::to_string(c.GDay)));
    show_key(ws);
  }
  f.updating = false;
}

void txttime_change(Desk& ws) {
  if (!ws.FrmFind.updating) show_key(ws);
}

// The calendar control's date goes to the Gregorian boxes.
void DTPicker1_change(Desk& ws) {
  FrmFind& f = ws.FrmFind;
  if (f.updating) return;
  const std::string t = trim(f.DTPicker1.text);
  int y = 0, m = 0, d = 0;
  if (len(t) != 10 || !number_of(left(t, 4), y) || !number_of(mid(t, 6, 2), m) || !number_of(mid(t, 9, 2), d)) return;
  if (m < 1 || m > 12) return;
  f.updating = true;
  ws.set(f.TXTYEARmi, left(t, 4));
  ws.set(f.ComMI, std::string(gregorian_month_names_upper()[m - 1]));
  ws.set(f.TXTDAYmi, mid(t, 9, 2));
  f.updating = false;
  from_gregorian(ws);
}

// Today's date in both calendars.
void FrmFind_load(Desk& ws) {
  FrmFind& f = ws.FrmFind;
  const DateTime now = ws.now();
  f.found = false;
  f.updating = true;
  ws.set(f.TXTYEARmi, std::to_string(now.year));
  if (now.month >= 1 && now.month <= 12)
    ws.set(f.ComMI, std::string(gregorian_month_names_upper()[static_cast<std::size_t>(now.month - 1)]));
  ws.set(f.TXTDAYmi, lead_zero(std::to_string(now.day)));
  ws.set(f.DTPicker1, std::to_string(now.year) + "-" + lead_zero(std::to_string(now.month)) + "-" +
                          lead_zero(std::to_string(now.day)));
  f.updating = false;
  from_gregorian(ws);
}

void CmdFind_click(Desk& ws) {
  ws.FrmFind.found = true;
  ws.hide(ws.FrmFind);
}

}  // namespace

// getstring: the dialog shows modally; its text goes to the caller when "Find"
// closed it, an empty text when it was closed otherwise. It stays loaded with the
// date last asked for.
void open_find_dialog(Desk& ws, std::function<void(Desk&, const std::string&)> on_text) {
  FrmFind& f = ws.FrmFind;
  f.found = false;
  ws.show_modal(f, [on_text = std::move(on_text)](Desk& w) {
    FrmFind& d = w.FrmFind;
    const std::string text = d.found ? d.Txtfind.text : std::string();
    d.found = false;
    if (on_text) on_text(w, text);
  });
}

void wire_search(Desk& ws) {
  FrmFind& f = ws.FrmFind;
  // The month lists as the calendar names them.
  f.ComMI.items.assign(gregorian_month_names_upper().begin(), gregorian_month_names_upper().end());
  f.ComSH.items.assign(shamsi_month_names().begin(), shamsi_month_names().end());
  f.on(ScreenEvent::Load, FrmFind_load);
  f.on(ScreenEvent::Unload, [](Desk& w) { w.FrmFind.found = false; });
  for (Control* c : Controls{&f.TXTDAYmi, &f.ComMI, &f.TXTYEARmi}) c->on(Event::Change, from_gregorian);
  for (Control* c : Controls{&f.TXTDAYsh, &f.ComSH, &f.TXTYEARsh}) c->on(Event::Change, from_shamsi);
  f.txttime.on(Event::Change, txttime_change);
  f.DTPicker1.on(Event::Change, DTPicker1_change);
  f.CmdFind.on(Event::Click, CmdFind_click);
}

}  // namespace obsdesk
