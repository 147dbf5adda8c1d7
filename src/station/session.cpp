#include "station/session.h"

#include "checks/entry_checks.h"
#include "calendar/key_text.h"
#include "station/program.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "station/workstation.h"
#include "calendar/calendar.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr const char* kCheckHour = "     زمان را چــك نمـائيـــد";
constexpr const char* kChooseKind = "نــوع گــزارش را انـتـخـاب نـماييد";
constexpr const char* kTypeIrix = "را وارد نمـائيـــد  IRIX   ";
constexpr const char* kObserverHead = "نام ديدبان كشيك";
constexpr const char* kObserverTyped = "        نام ديده بان  كشيك";
const std::string kFiveBlanks = "     ";

// ---- Opening --------------------------------------------------------------------

void FrmKashf_load(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  ws.humidity_mode = 0;
  apply_colours(ws);
  ws.set(k.TxtResolution, ws.FrmMain.TxtResolution.text);
  // With the barograph in use the pressure is read from it: the attached
  // thermometer is not asked for.
  k.Frameh5.visible = val(ws.FrmOption.txtPnegar.text) == 1;
  ws.set(k.Combo5, std::string(kMetar));
  ws.set(k.Txttond, kFiveBlanks);
  ws.set(k.Txtmaxwind, kFiveBlanks);
  for (Control* c : Controls{&k.txtt12, &k.Text6, &k.Text8, &k.Text10, &k.Text49, &k.Text17, &k.Text23, &k.Text7,
                             &k.Text9, &k.Text11, &k.txtmin, &k.Text16, &k.Text22})
    ws.set(*c, "0");
  for (Control* c : Controls{&k.Combo1, &k.Combo2, &k.Combo3, &k.Combo4, &k.Combo6, &k.Combo9})
    ws.set(*c, std::string(kNoCloud));
  ws.set(k.txtloge, "0.434294481903316872123113638058917");
  ws.set(k.TXTe, "2.7182818284594523536028747135266");
  ws.set(k.txtpi, "3.1415926535897932384626433832795");
  rebuild_key_text(ws);
  ws.set(k.Text1, "");
}

void FrmKashf_activate(Desk& ws) {
  ws.set(ws.FrmKashf.Text44, station_heading(ws));
  fill_today(ws);
}

// ---- Hour -------------------------------------------------------------------------

// The masks over everything from the wind to the clouds but the dry bulb, and the
// SYNOP button of the night hours of a 12-hour station.
void apply_night_masks(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const bool night = twelve_hour_night(ws);
  for (Control* m : Controls{&k.Frameh1, &k.Frameh2, &k.Frameh3, &k.Frameh4, &k.cmdsynop1218}) m->visible = night;
  k.Cmdsynop.visible = !night;
}

void Text1_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string t = k.Text1.text;
  const std::size_t n = len(t);
  const bool digits = n <= 2 && (n < 1 || is_digit(char_at(t, 1))) && (n < 2 || is_digit(char_at(t, 2)));
  if (!digits || (val(t) > 23 && t != "24")) {
    ws.error(kCheckHour);
    ws.set(k.Text1, "");
    ws.focus(k.Text1);
  } else if (t == "24") {
    k.Text1.text = "00";
  }
  rebuild_key_text(ws);
  apply_night_masks(ws);
  apply_hour_rules(ws);
}

// hhmm of a SPECI or METAR(30'): four digits, the hour up to 23 and the minutes
// up to 59 once all four are there.
void txt1_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string t = k.txt1.text;
  bool good = len(t) <= 4;
  for (std::size_t i = 1; good && i <= len(t); ++i) good = is_digit(char_at(t, i));
  if (good && len(t) == 4) good = val(left(t, 2)) <= 23 && val(mid(t, 3)) <= 59;
  if (!good) {
    ws.error(kCheckHour);
    ws.set(k.txt1, "");
    ws.focus(k.txt1);
  }
  rebuild_key_text(ws);
}

void txt1_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string t = k.txt1.text;
  if (t.empty()) return;
  const std::string full = pad_left(t, 4);
  ws.set(k.txt1, full);
  ws.set(report_kind(ws) == kSpeci ? ws.FrmCode.Text29 : ws.FrmCode.TXTUTC, full);
}

void Text1_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (twelve_hour_night(ws) && report_kind(ws) == kSynMet) {
    ws.set(k.Combo5, std::string(kSynop));
    k.Command4.enabled = false;
    ws.focus(k.Text27);
  }
}

void Text1_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& kind = report_kind(ws);
  if (!is_report_kind(kind)) {
    ws.error(kChooseKind);
    ws.focus(k.Combo5);
  } else if (is_synop_kind(kind) && k.Text48.text.empty()) {
    ws.error(kTypeIrix);
    ws.focus(k.Combo5);
  }
}

// ---- Re-edit of the thermometers ----------------------------------------------------

void Command1_click(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (Control* c : Controls{&k.Text27, &k.Text28, &k.Text13}) c->locked = false;
  for (Control* c : Controls{&k.Text27, &k.Text28, &k.Text13, &k.Text14, &k.Text41}) ws.set(*c, "");
  ws.humidity_mode = 0;
  ws.focus(k.Text27);
}

// ---- Observer and confirmation --------------------------------------------------------

// After a coder has run, the observers of the profile are offered.
void fill_observers(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const FrmOption& o = ws.FrmOption;
  k.Combo7.items.clear();
  ws.set(k.Combo7, kObserverHead);
  for (const TextBox* name : {&o.Text5, &o.Text6, &o.Text7, &o.Text8, &o.Text9, &o.Text10, &o.Text11, &o.Text12})
    if (!trim(name->text).empty()) k.Combo7.items.push_back(name->text);
}

// At 18, 21 and 00 a 12-hour station codes its SYNOP with cmdsynop1218, which
// stands disabled once it has run.
bool night_synop_coded(const Desk& ws) {
  return twelve_hour_night(ws) && ws.FrmKashf.cmdsynop1218.visible && !ws.FrmKashf.cmdsynop1218.enabled;
}

// The coded flags the report kind needs before it may be confirmed.
bool coded_for_kind(const Desk& ws) {
  return report_kind_coded(ws) || (report_kind(ws) == kSynop && night_synop_coded(ws));
}

// Only a choice from the list counts: typed text is put back to the heading.
void Combo7_change(Desk& ws) {
  ComboBox& c = ws.FrmKashf.Combo7;
  if (c.text == kObserverHead || c.has_item(c.text)) return;
  ws.set(c, kObserverTyped);
}

void Combo7_click(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Combo7.has_item(k.Combo7.text) && coded_for_kind(ws)) k.ZAKHIREH.enabled = true;
}

}  // namespace

// ---- Shared helpers -------------------------------------------------------------------

// ---- Today's date ---------------------------------------------------------------------

void fill_today(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const DateTime now = ws.now();
  ws.date_boxes_hour = now.hour;
  ws.set(k.TXTYEARmi, std::to_string(now.year));
  ws.set(k.TXTMONTHMI, pad_left(std::to_string(now.month), 2));
  ws.set(k.TXTDAYmi, pad_left(std::to_string(now.day), 2));
  gregorian_to_shamsi(ws.calendar, now.year, now.month, now.day);
  ws.set(k.TXTYEARsh, std::to_string(ws.calendar.SYear));
  ws.set(k.TXTMONTHSH, pad_left(std::to_string(ws.calendar.SMonth), 2));
  ws.set(k.TXTDAYsh, pad_left(std::to_string(ws.calendar.SDay), 2));
  // The 29th of February is cleared in every year: in a leap year that date is
  // keyed by hand.
  const int d = now.day, m = now.month;
  if (d > 31 || (d == 31 && (m == 4 || m == 6 || m == 9 || m == 11)) || (d == 29 && m == 2))
    for (Control* c : Controls{&k.TXTYEARsh, &k.TXTMONTHSH, &k.TXTDAYsh}) ws.set(*c, "");
  rebuild_key_text(ws);
}

// ---- Groups by hour ---------------------------------------------------------------------

void apply_hour_rules(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& kind = report_kind(ws);
  const bool synop_kind = is_synop_kind(kind);
  auto at = [&](std::initializer_list<std::string_view> hours) { return hour_is(ws, hours); };
  // Until an hour is typed the groups stay as the report kind set them.
  if (hour_text(ws).empty()) return;

  k.Text51.visible = at({"00"});
  k.Text53.visible = at({"06"});
  k.txtpast6.visible = at({"00", "06", "12", "18"});
  // The soil, pan, ground, radiation and extremes groups belong to the SYNOP kinds.
  k.Frame15.visible = synop_kind && at({"03", "3", "15"});
  k.Frame8.visible = synop_kind && at({"06", "6"});
  k.Frame9.visible = k.Frame8.visible;
  k.Frame10.visible = synop_kind && at({"18"});
  k.Frame5.visible = synop_kind && at({"03", "3", "09", "9", "15"});
  ws.FrmCode.Frame12.visible = at({"03", "3", "09", "9", "15"});
  if (kind != kSpeci) {
    k.Txttimesun.visible = k.Label109.visible = at({"18"});
    for (Control* c : Controls{&k.Txttond, &k.Label98, &k.Txtmaxwind, &k.Label96}) c->visible = at({"21"});
  }
  if (!at({"15"})) k.FraTmaxS.visible = false;

  struct Period {
    std::initializer_list<std::string_view> hours;
    const char* label;
  };
  static const Period periods[] = {{{"00", "0"}, "21-00"}, {{"03", "3"}, "00-03"}, {{"06", "6"}, "03-06"},
                                   {{"09", "9"}, "06-09"}, {{"12"}, "09-12"},      {{"15"}, "12-15"},
                                   {{"18"}, "15-18"},      {{"21"}, "18-21"}};
  bool main_hour = false;
  for (const Period& p : periods) {
    if (at(p.hours)) {
      main_hour = true;
      k.Labrain.text = p.label;
    }
  }
  k.Frame6.visible = synop_kind && main_hour;

  // 9GGgg: the hour before, with "50" minutes.
  const std::string& h = hour_text(ws);
  if (!h.empty() && val(h) >= 0 && val(h) <= 23) {
    const int before = (int_val(h) + 23) % 24;
    ws.set(ws.FrmCode.Text87, "9" + pad_left(std::to_string(before), 2) + "50");
  }
}

void wire_session(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.on(ScreenEvent::Load, FrmKashf_load);
  // The humidity mode is the mode of one report: off when the screen opens and
  // when it is left.
  k.on(ScreenEvent::Unload, [](Desk& w) { w.humidity_mode = 0; });
  k.on(ScreenEvent::Activate, FrmKashf_activate);
  k.Text1.on(Event::Change, Text1_change);
  k.Text1.on(Event::Leave, Text1_leave);
  k.Text1.on(Event::Enter, Text1_enter);
  k.txt1.on(Event::Change, txt1_change);
  k.txt1.on(Event::Leave, txt1_leave);
  k.Command1.on(Event::Click, Command1_click);
  k.Combo7.on(Event::Change, Combo7_change);
  k.Combo7.on(Event::Click, Combo7_click);
  // After a press of a coder button the pointer moves on: the observers are offered.
  k.Cmdsynop.on(Event::MouseLeave, [](Desk& w) {
    if (w.SYNOP_coded != 0) fill_observers(w);
  });
  k.cmdsynop1218.on(Event::MouseLeave, [](Desk& w) {
    if (night_synop_coded(w)) fill_observers(w);
  });
  k.Command4.on(Event::MouseLeave, [](Desk& w) {
    if (w.METAR_coded != 0) fill_observers(w);
  });
  k.Command8.on(Event::MouseLeave, [](Desk& w) {
    if (w.SPECI_coded != 0) fill_observers(w);
  });
  wire_session_walk(ws);
  wire_wind(ws);
  wire_visibility(ws);
  wire_cloud(ws);
}

}  // namespace obsdesk
