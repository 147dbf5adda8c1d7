// Visibility entry: the mean horizontal visibility VH (Text4), typed in
// kilometres or metres and stored in metres; the minimum TxtVM and maximum MAXVV
// (Text26) with the directions CMbMAX and CMbMIN they are seen in.
#include <algorithm>
#include <array>

#include "checks/entry_checks.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr const char* kTypeVisibility = "مــقدار ديد افقي را وارد نمـائيـــد";
constexpr const char* kCheckVisibility = "مــقدار ديد افقي را چــك نمـائيـــد";
constexpr const char* kConfirmVisibility = "آيا ديد افقي را تائيد مينمائيد ؟";
constexpr const char* kTypeSpeedFirst = "مــقدار سـرعـت باد را وارد نمـائيـــد";
// The minimum and maximum borrow the words of the temperature and the wind on a
// bad character. Kept as the station's observers know them: they type again on
// those words, and new words for the same refusal would read as a new rule.
constexpr const char* kBorrowedFirst = "مــقدار دمــا را چــك نمـائيـــد";
constexpr const char* kBorrowedOther = "مــقدار ســرعت باد را چــك نمـائيـــد";
constexpr const char* kCheckMinimum = "مــقدار ديد حداقل را چك نمائيد";
constexpr const char* kCheckMaximum = "مــقدار ديد حداكثر را چك نمائيد";
constexpr const char* kConfirmMaximum = "ايا مــقدار ديد حداكثر را تاييد مينمائيد؟";
constexpr const char* kTypeMaximum = "مــقدار ديد حداكثر را وارد نمائيد";
constexpr const char* kDirectionFirst = "ســمت ديد افــقــي وارد  شود";
constexpr const char* kCheckVhBox = "ديد افــقــي چـك شود";
constexpr const char* kCheckDirection = "سمت ديد افــقــي چـك شود";
constexpr const char* kTypeVhBox = "مقــدار ديد افــقــي وارد شود";

// Typed direction, upper case, to its stored form: the eight directions and the
// reversed pairs.
constexpr std::array<std::pair<std::string_view, std::string_view>, 12> kDirections = {{
    {"N", "N"}, {"E", "E"}, {"S", "S"}, {"W", "W"}, {"NE", "NE"}, {"NW", "NW"},
    {"SE", "SE"}, {"SW", "SW"}, {"EN", "NE"}, {"ES", "SE"}, {"WN", "NW"}, {"WS", "SW"},
}};

std::string_view stored_direction(const std::string& typed) {
  const std::string u = upper(typed);
  for (auto [t, s] : kDirections)
    if (u == t) return s;
  return {};
}

// The characters of a visibility in its first five places: digits, the point,
// the dash and the sign of code 250. The first bad place, 0 when all are good.
std::size_t bad_visibility_place(const std::string& t) {
  static const std::string sukun = ansi_char(250);
  for (std::size_t i = 1; i <= std::min<std::size_t>(len(t), 5); ++i) {
    const std::string c = char_at(t, i);
    if (!is_digit(c) && c != "." && c != "-" && c != sukun) return i;
  }
  return 0;
}

bool asks_confirmation(double metres) { return metres > 20000 || metres < 100; }

void Text4_change(Desk& ws) {
  TextBox& vh = ws.FrmKashf.Text4;
  if (bad_visibility_place(vh.text) != 0) refuse(ws, vh, kTypeVisibility);
}

// Both visibilities wait for the wind speed: entering one with the speed box
// empty sends the observer back to it.
void wind_speed_first(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text3.text.empty()) {
    ws.error(kTypeSpeedFirst);
    ws.focus(k.Text3);
  }
}

void Text4_leave(Desk& ws) {
  TextBox& vh = ws.FrmKashf.Text4;
  if (vh.text.empty()) {
    // Told, not held: the wind box may be asking for the focus at the same time.
    ws.error(kTypeVisibility);
    return;
  }
  double m = 0;
  if (!visibility_metres(vh.text, m)) {
    refuse(ws, vh, kCheckVisibility);
    return;
  }
  if (asks_confirmation(m) && !ws.ask(kConfirmVisibility)) {
    ws.set(vh, "");
    ws.focus(vh);
    return;
  }
  ws.set(vh, num(cut_to_5000(m)));
}

void Text4_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text4.text.empty()) return;
  ws.focus(report_kind(ws) == ReportKind::Synop ? static_cast<Control&>(k.Text5) : k.TxtVM);
}

// The character rule of the minimum and the maximum, with the borrowed words.
bool extreme_characters_ok(Desk& ws, Control& box) {
  const std::size_t bad = bad_visibility_place(box.text);
  if (bad == 0) return true;
  refuse(ws, box, bad == 1 ? kBorrowedFirst : kBorrowedOther);
  return false;
}

// Steps of VH's leaving shared by the minimum and the maximum. False when refused.
bool extreme_to_metres(Desk& ws, Control& box, const char* words, double& m) {
  if (!visibility_metres(box.text, m)) {
    refuse(ws, box, words);
    return false;
  }
  ws.set(box, num(m));
  return true;
}

void TxtVM_leave(Desk& ws) {
  TextBox& vm = ws.FrmKashf.TxtVM;
  vm.back_color = kOrange;
  double m = 0;
  if (!vm.text.empty()) extreme_to_metres(ws, vm, kCheckMinimum, m);
}

void TxtVM_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  ws.focus(report_kind(ws) == ReportKind::Synop ? static_cast<Control&>(k.Text5) : k.CMbMAX);
}

void Text26_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (!extreme_characters_ok(ws, k.Text26) || k.Text26.text.empty()) return;
  if (k.CMbMAX.text.empty()) {
    ws.message(kDirectionFirst);
    ws.set(k.Text26, "");
    ws.focus(k.CMbMAX);
  } else if (k.Text4.text.empty()) {
    ws.message(kCheckVhBox);
  }
}

void Text26_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  TextBox& mx = k.Text26;
  mx.back_color = kOrange;
  if (mx.text.empty()) return;
  double m = 0;
  if (!extreme_to_metres(ws, mx, kCheckMaximum, m)) return;
  if (asks_confirmation(m) && !ws.ask(kConfirmMaximum)) {
    ws.set(mx, "");
    ws.focus(mx);
    return;
  }
  if (m <= val(k.TxtVM.text)) refuse(ws, mx, kCheckMaximum);
}

// A direction list: one of the eight or a reversed pair, and the visibility it
// belongs to typed first. on_click: the test of a choice from the list.
void direction_rule(Desk& ws, ComboBox& list, bool on_click) {
  FrmKashf& k = ws.FrmKashf;
  if (list.text.empty()) return;
  if (stored_direction(list.text).empty()) {
    ws.message(kCheckDirection);
    ws.set(list, "");
    ws.focus(list);
    return;
  }
  Control* missing = nullptr;
  if (&list == &k.CMbMAX) {
    if (k.Text4.text.empty() && (!on_click || k.TxtVM.text.empty())) missing = &k.Text4;
  } else if (k.Text26.text.empty()) {
    missing = &k.Text26;
  }
  if (missing != nullptr) {
    ws.message(kTypeVhBox);
    ws.set(list, "");
    ws.focus(*missing);
  }
}

void direction_leave(Desk& ws, ComboBox& list) {
  list.back_color = kOrange;
  if (list.text.empty()) return;
  const std::string_view stored = stored_direction(list.text);
  if (stored.empty()) {
    ws.message(kCheckDirection);
    ws.set(list, "");
    ws.focus(list);
    return;
  }
  ws.set(list, std::string(stored));
}

void CMbMIN_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.TxtVM.text.empty() && k.Text26.text.empty()) {
    ws.error(kTypeMaximum);
    ws.focus(k.Text26);
  }
}

}  // namespace

bool visibility_metres(const std::string& typed, double& metres) {
  const double v = val(typed);
  if (len(typed) > 2) {
    if (v > 2999) return false;
    const bool point = char_at(typed, 2) == "." || char_at(typed, 3) == ".";
    metres = (v < 100 && point) ? v * 1000 : v;
  } else {
    metres = v * 1000;
  }
  return true;
}

double cut_to_5000(double metres) {
  if (metres > 30000 && metres < 70000) return vb_int(metres / 5000) * 5000;
  return metres;
}

void wire_visibility(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Text4.on(Event::Change, Text4_change);
  k.Text4.on(Event::Enter, wind_speed_first);
  k.Text4.on(Event::Leave, Text4_leave);
  k.Text4.on(Event::KeyEnter, Text4_key_enter);
  k.TxtVM.on(Event::Change, [](Desk& w) { extreme_characters_ok(w, w.FrmKashf.TxtVM); });
  k.TxtVM.on(Event::Enter, wind_speed_first);
  k.TxtVM.on(Event::Leave, TxtVM_leave);
  k.TxtVM.on(Event::KeyEnter, TxtVM_key_enter);
  k.Text26.on(Event::Change, Text26_change);
  k.Text26.on(Event::Leave, Text26_leave);
  for (ComboBox* list : {&k.CMbMAX, &k.CMbMIN}) {
    list->on(Event::Change, [list](Desk& w) { direction_rule(w, *list, false); });
    list->on(Event::Click, [list](Desk& w) { direction_rule(w, *list, true); });
    list->on(Event::Leave, [list](Desk& w) { direction_leave(w, *list); });
  }
  k.CMbMIN.on(Event::Enter, CMbMIN_enter);
}

}  // namespace obsdesk
