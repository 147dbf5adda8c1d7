// Cloud entry: total cloud N (Text5) and the vertical visibility VV (Text12); the
// amount, type and height of the three low layers, the middle and the high layer;
// the SYNOP summary (Text49, Combo4, txtmin) kept up to date while the heights are
// typed; the layers an overcast sky makes unobservable; the walk to the rain box.
#include <array>

#include "checks/entry_checks.h"
#include "screens/record.h"
#include "screens/boards.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr const char* kCheckTotal = "مــقدار كل ابــر را چــك نمـائيـــد";
constexpr const char* kConfirmTotal = "آيا مقـدار ابـــر را تائيد مينمائيد ؟";
constexpr const char* kCheckAmount = "مــقدار  ابــر را چــك نمـائيـــد";
// The first refusal of the first layer is spaced differently (one blank where
// the others have two). Kept as the observers have always seen it: the
// refusal means the same either way, and the words stand exactly as shown.
constexpr const char* kCheckAmountFirst = "مــقدار ابــر را چــك نمـائيـــد";
constexpr const char* kTypeVisibility = "مــقدار ديد افقي را وارد نمـائيـــد";
constexpr const char* kSameTypeFirstPair = "نوع ابر لايه هاي  پايين  را چــك نمـائيـــد";
constexpr const char* kSameTypeSecondPair = "نوع ابر لايه هاي پايين  را چــك نمـائيـــد";
constexpr const char* kTraceType = "مقدار ابر ترس با  نوع ابر  هـمخواني ندارد";
constexpr const char* kNotHere = "نه بايددراين باكس تايپ نمائيد";
constexpr const char* kLowHeight = "ارتفاع ابر پايين را مجددا وارد نمـائيـــد";
constexpr const char* kMiddleHeight = "ارتفاع ابر متوسط را مجددا وارد نمـائيـــد";
constexpr const char* kHighHeight = "ارتفاع ابر بالا را مجددا وارد نمـائيـــد";
const std::string kBlankGroup = "     ";
const std::string kTrace = "TR";
const std::string kOvercastAbove = "       X";

// Present weather codes with which a sky of less than three eighths is questioned.
constexpr int kWetWeatherFrom = 58, kWetWeatherTo = 99;

struct HeightRange {
  const char* box;
  double lowest, highest;
  const char* words;
  bool x_allowed;  // the middle and high layer may be forced to "X" by an overcast below
};
constexpr std::array<HeightRange, 5> kHeights = {{
    {"Text7", 30, 2500, kLowHeight, false},
    {"Text9", 30, 2500, kLowHeight, false},
    {"Text11", 30, 2500, kLowHeight, false},
    {"Text16", 1500, 3900, kMiddleHeight, true},
    {"Text22", 3300, 6900, kHighHeight, true},
}};

// A cloud type typed as its code figure, expanded to the list's item.
struct TypeList {
  const char* box;
  std::array<const char*, 11> by_figure;  // figures 0 to 9, then X
};
constexpr const char* kLowTypes[11] = {"       0", "CU     1", "CU     2", "CB     3", "SC     4", "SC     5",
                                       "ST,FS  6", "FS,FCU 7", "CU,SC  8", "CB     9", "       X"};
constexpr std::array<TypeList, 5> kTypeLists = {{
    {"Combo1", {kLowTypes[0], kLowTypes[1], kLowTypes[2], kLowTypes[3], kLowTypes[4], kLowTypes[5], kLowTypes[6],
                kLowTypes[7], kLowTypes[8], kLowTypes[9], kLowTypes[10]}},
    {"Combo2", {kLowTypes[0], kLowTypes[1], kLowTypes[2], kLowTypes[3], kLowTypes[4], kLowTypes[5], kLowTypes[6],
                kLowTypes[7], kLowTypes[8], kLowTypes[9], kLowTypes[10]}},
    {"Combo3", {kLowTypes[0], kLowTypes[1], kLowTypes[2], kLowTypes[3], kLowTypes[4], kLowTypes[5], kLowTypes[6],
                kLowTypes[7], kLowTypes[8], kLowTypes[9], kLowTypes[10]}},
    {"Combo6", {"       0", "AS     1", "AS     2", "AC     3", "AC     4", "AC     5", "AC     6", "AC,AS  7",
                "AC     8", "AC     9", "       X"}},
    {"Combo9", {"       0", "CI     1", "CI     2", "CI     3", "CI     4", "CS     5", "CS     6", "CS     7",
                "CS     8", "CC,CS  9", "       X"}},
}};

bool is_trace(const std::string& t) { return upper(t) == kTrace; }
// Total cloud as a number: a trace is none.
double total_cloud(const FrmKashf& k) { return is_trace(k.Text5.text) ? 0 : val(k.Text5.text); }

// ---- Total cloud --------------------------------------------------------------------

void show_layers(FrmKashf& k, bool on) {
  for (Control* f : Controls{&k.Frame1, &k.Frame2, &k.Frame3}) f->visible = on;
  k.Image6.visible = !on;
}

// A sky of none or of invisible cloud: every layer is filled with nothing.
void fill_clear_sky(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (Control* c : Controls{&k.Text6, &k.Text8, &k.Text10, &k.Text49, &k.Text17, &k.Text23, &k.Text7, &k.Text9,
                             &k.Text11, &k.txtmin, &k.Text16, &k.Text22})
    ws.set(*c, "0");
  for (Control* c : Controls{&k.Combo1, &k.Combo2, &k.Combo3, &k.Combo4, &k.Combo6, &k.Combo9})
    ws.set(*c, std::string(kNoCloud));
}

void Text5_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  TextBox& n = k.Text5;
  ws.set(k.Text12, "");
  if (n.text.empty()) {
    show_layers(k, false);
    return;
  }
  const double amount = is_trace(n.text) ? 1 : val(n.text);
  const int ww = present_weather_code(ws);
  if (ww >= kWetWeatherFrom && ww <= kWetWeatherTo && amount < 3 && !ws.ask(kConfirmTotal)) {
    ws.set(n, "");
    ws.focus(n);
    return;
  }
  if (n.text == "t" || n.text == "T" || lower(n.text) == "tr") ws.set(n, kTrace);
  const std::string t = n.text;
  if ((len(t) == 2 && t != kTrace) || (t != kTrace && !is_digit(char_at(t, 1))) || val(t) > 9) {
    refuse(ws, n, kCheckTotal);
    return;
  }
  k.Text12.locked = t != "9";
  if (t == "0" || t == "9") {
    fill_clear_sky(ws);
    show_layers(k, false);
  } else {
    show_layers(k, true);
    ws.set(ws.FrmCode.Text76, kBlankGroup);
    ws.set(ws.FrmCode.Text77, kBlankGroup);
  }
  // With no cloud the lowest height is the station's default.
  if (t == "0") ws.set(k.txtmin, ws.FrmOption.txthmin.text);
  const bool synop_kind = is_synop_kind(report_kind(ws));
  k.Frame16.visible = synop_kind;
  k.Label42.visible = synop_kind;
}

void Text5_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text4.text.empty() && k.TxtVM.text.empty()) {
    ws.error(kTypeVisibility);
    ws.focus(k.Text4);
  }
}

void Text5_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text5.text == "9") ws.focus(k.Text12);
  else if (!k.Text5.text.empty()) ws.focus(k.Text27);
}

// The temperature twelve hours before, for the SYNOP extremes.
void Text5_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& h = hour_text(ws);
  if (!k.Frame6.visible || !is_numeric(h) || val(h) < 0 || val(h) > 23) return;
  const int index = main_hour_index((int_val(h) + 12) % 24);
  if (index >= 0) ws.set(k.txtt12, ws.FrmMain.T[static_cast<std::size_t>(index)]->text);
}

// ---- Amounts ------------------------------------------------------------------------------

void amount_change(Desk& ws, TextBox& box) {
  FrmKashf& k = ws.FrmKashf;
  std::string t = box.text;
  if (t.empty()) return;
  if (t == "t" || t == "T" || (len(t) == 2 && upper(char_at(t, 1)) == "T" && char_at(t, 2) == "R")) {
    ws.set(box, kTrace);
    t = kTrace;
  }
  if (len(t) > 1 && t != kTrace) {
    refuse(ws, box, &box == &k.Text6 ? kCheckAmountFirst : kCheckAmount);
    return;
  }
  if (t == kTrace) return;
  // Above an overcast layer the amounts are forced: "9" for the middle layer and
  // the summary, "9" or "X" for the high layer.
  const bool nine_allowed = &box == &k.Text17 || &box == &k.Text49 || &box == &k.Text23;
  if (&box == &k.Text23 && upper(t) == "X") {
    ws.set(box, "X");
    return;
  }
  if (!is_digit(t) || (val(t) > total_cloud(k) && !(nine_allowed && t == "9"))) {
    refuse(ws, box, kCheckAmount);
    return;
  }
  if (&box == &k.Text49 && t == "9") {
    ws.set(k.Combo4, "x");
    ws.set(k.txtmin, "x");
  }
}

void empty_to_zero(Desk& ws, Control& box) {
  if (box.text.empty()) ws.set(box, "0");
}

// ---- Heights -------------------------------------------------------------------------------

const HeightRange& range_of(const Control& box) {
  for (const HeightRange& r : kHeights)
    if (box.name == r.box) return r;
  return kHeights[0];
}

// The lowest height of the low layers, kept in the SYNOP summary.
void update_summary(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (Control* c : Controls{&ws.FrmCode.Text98, &ws.FrmCode.Text99, &ws.FrmCode.Text100, &ws.FrmCode.Text101})
    ws.set(*c, kBlankGroup);
  if (k.Text7.text.empty() && k.Text9.text.empty() && k.Text11.text.empty()) {
    ws.set(k.Text49, "");
    ws.set(k.Combo4, std::string(kNoCloud));
    for (Control* c : Controls{&k.Text7, &k.Text9, &k.Text11, &k.Text6, &k.Text8, &k.Text10, &k.Text49})
      empty_to_zero(ws, *c);
  } else {
    ws.set(k.Text49, k.Text6.text);
    ws.set(k.Combo4, k.Combo1.text);
    empty_to_zero(ws, k.Text9);
    empty_to_zero(ws, k.Text11);
  }
  if (val(k.Text7.text) != 0) ws.set(k.txtmin, k.Text7.text);
  for (TextBox* h : {&k.Text9, &k.Text11})
    if (val(h->text) != 0 && val(h->text) < val(k.txtmin.text)) ws.set(k.txtmin, h->text);
}

// A low height is typed as at most four figures, the metres of a layer up to
// 2500 m: a longer text or another character would give groups of the wrong
// length. False when the box was refused.
bool low_height_typed(Desk& ws, TextBox& box) {
  const std::string& t = box.text;
  bool ok = t.size() <= 4;
  for (char c : t) ok = ok && c >= '0' && c <= '9';
  if (!ok) refuse(ws, box, range_of(box).words);
  return ok;
}

void Text9_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (!low_height_typed(ws, k.Text9)) return;
  if (k.Text7.text.empty() && !k.Text9.text.empty()) {
    ws.message(kNotHere);
    ws.set(k.Text9, "");
    return;
  }
  update_summary(ws);
}

// Above an overcast layer nothing can be seen: the layers above are forced.
void overcast_above_low(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text6.text != "8") return;
  ws.set(k.Text17, "9");
  ws.set(k.Text16, "X");
  ws.set(k.Text23, "X");
  ws.set(k.Text22, "X");
  ws.set(k.Combo6, kOvercastAbove);
  ws.set(k.Combo9, kOvercastAbove);
}

void overcast_above_middle(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text17.text != "8") return;
  ws.set(k.Text23, "9");
  ws.set(k.Text22, "X");
  ws.set(k.Combo9, kOvercastAbove);
}

// ---- Types ---------------------------------------------------------------------------------

void type_change(Desk& ws, ComboBox& list, const TypeList& table) {
  const std::string& t = list.text;
  if (len(t) != 1) return;
  if (is_digit(t)) ws.set(list, table.by_figure[static_cast<std::size_t>(val(t))]);
  else if (upper(t) == "X") ws.set(list, table.by_figure[10]);
  else return;
  list.fore_color = kWindowText;
}

// The same type in two low layers is refused.
void low_type_click(Desk& ws, ComboBox& list) {
  FrmKashf& k = ws.FrmKashf;
  auto same = [&](const ComboBox& a, const ComboBox& b) { return a.text == b.text && a.text != kNoCloud; };
  const char* words = nullptr;
  if ((&list == &k.Combo1 || &list == &k.Combo2) && same(k.Combo1, k.Combo2)) words = kSameTypeFirstPair;
  else if ((&list == &k.Combo1 || &list == &k.Combo3) && same(k.Combo1, k.Combo3)) words = kSameTypeSecondPair;
  if (words != nullptr) refuse(ws, list, words);
}

// A trace of cloud can only be one of the small heaps or a thunder cloud.
void low_type_leave(Desk& ws, ComboBox& list, TextBox& amount) {
  if (list.text.empty()) ws.set(list, std::string(kNoCloud));
  if (!is_trace(amount.text)) return;
  if (list.text != "CB     3" && list.text != "CU     2" && list.text != "CB     9") refuse(ws, list, kTraceType);
}

// ---- The walk ----------------------------------------------------------------------------------

// Enter in the height of a layer that covers the sky skips the layers above it.
bool skip_above_overcast(Desk& ws, TextBox& amount) {
  if (amount.text != "8") return false;
  if (is_metar_kind(report_kind(ws))) ws.focus(ws.FrmKashf.Text74);
  else rainfall_rule(ws);
  return true;
}

void Text11_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  ws.focus(is_metar_kind(report_kind(ws)) ? static_cast<Control&>(k.Text17) : k.Text49);
}

void Text12_key_enter(Desk& ws) {
  if (!ws.FrmKashf.Text12.text.empty()) ws.focus(ws.FrmKashf.Text27);
}

void Cmb_NLC_click(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  ws.set(k.Txt_NLC, k.Cmb_NLC.text == "None" ? "" : k.Cmb_NLC.text);
}

}  // namespace

bool cloud_height_ok(Desk& ws, Control& height_box) {
  const HeightRange& r = range_of(height_box);
  const std::string& t = height_box.text;
  if (t.empty() || (r.x_allowed && upper(t) == "X")) return true;
  if (is_numeric(t) && (val(t) == 0 || (val(t) >= r.lowest && val(t) <= r.highest))) return true;
  refuse(ws, height_box, r.words);
  return false;
}

void rainfall_rule(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (is_metar_kind(report_kind(ws))) {
    ws.focus(k.Text74);
  } else if (hour_is(ws, {"00", "0", "06", "6", "09", "9", "12", "18", "21"})) {
    const bool twelve = twelve_hour_station(ws);
    k.Text42.visible = twelve;
    k.Text50.visible = !twelve;
    ws.focus(twelve ? static_cast<Control&>(k.Text42) : k.Text50);
  } else if (hour_is(ws, {"03", "3", "15"})) {
    ws.focus(k.Text59);
  } else {
    ws.focus(k.Text74);
  }
}

void wire_cloud(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Text5.on(Event::Change, Text5_change);
  k.Text5.on(Event::Enter, Text5_enter);
  k.Text5.on(Event::Leave, Text5_leave);
  k.Text5.on(Event::KeyEnter, Text5_key_enter);
  k.Text12.on(Event::KeyEnter, Text12_key_enter);

  for (TextBox* a : {&k.Text6, &k.Text8, &k.Text10, &k.Text17, &k.Text23, &k.Text49}) {
    a->on(Event::Change, [a](Desk& w) { amount_change(w, *a); });
    a->on(Event::Leave, [a](Desk& w) { empty_to_zero(w, *a); });
  }
  // Each low height is tested when the field after it takes the focus.
  k.Text6.on(Event::Enter, [](Desk& w) {
    if (w.FrmKashf.Text25.visible && w.FrmKashf.Text25.text.empty()) w.focus(w.FrmKashf.Text25);
  });
  k.Text8.on(Event::Enter, [](Desk& w) { cloud_height_ok(w, w.FrmKashf.Text7); });
  k.Text10.on(Event::Enter, [](Desk& w) { cloud_height_ok(w, w.FrmKashf.Text9); });
  k.Text17.on(Event::Enter, [](Desk& w) { cloud_height_ok(w, w.FrmKashf.Text11); });
  k.Text49.on(Event::Enter, [](Desk& w) { cloud_height_ok(w, w.FrmKashf.Text11); });
  k.Text23.on(Event::Enter, [](Desk& w) { cloud_height_ok(w, w.FrmKashf.Text16); });
  k.Text8.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.Combo2); });
  k.Text49.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.Combo4); });
  k.Combo4.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.txtmin); });
  k.Text17.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.Combo6); });
  k.Text23.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.Combo9); });

  k.Text7.on(Event::Change, [](Desk& w) {
    if (low_height_typed(w, w.FrmKashf.Text7)) update_summary(w);
  });
  k.Text9.on(Event::Change, Text9_change);
  k.Text11.on(Event::Change, [](Desk& w) {
    if (low_height_typed(w, w.FrmKashf.Text11)) update_summary(w);
  });
  k.Text7.on(Event::Leave, [](Desk& w) {
    empty_to_zero(w, w.FrmKashf.Text7);
    overcast_above_low(w);
  });
  for (TextBox* h : {&k.Text9, &k.Text11}) h->on(Event::Leave, [h](Desk& w) { empty_to_zero(w, *h); });
  k.Text7.on(Event::KeyEnter, [](Desk& w) {
    if (!cloud_height_ok(w, w.FrmKashf.Text7)) return;
    if (!skip_above_overcast(w, w.FrmKashf.Text6)) w.focus(w.FrmKashf.Text8);
  });
  k.Text11.on(Event::KeyEnter, Text11_key_enter);
  // The middle and high heights are whole at four figures: tested then, and on leaving.
  for (TextBox* h : {&k.Text16, &k.Text22}) {
    h->on(Event::KeyUp, [h](Desk& w) {
      if (len(h->text) >= 4) cloud_height_ok(w, *h);
    });
  }
  k.Text16.on(Event::Leave, [](Desk& w) {
    empty_to_zero(w, w.FrmKashf.Text16);
    if (cloud_height_ok(w, w.FrmKashf.Text16)) overcast_above_middle(w);
  });
  k.Text22.on(Event::Leave, [](Desk& w) {
    empty_to_zero(w, w.FrmKashf.Text22);
    cloud_height_ok(w, w.FrmKashf.Text22);
  });
  k.Text16.on(Event::KeyEnter, [](Desk& w) {
    if (!skip_above_overcast(w, w.FrmKashf.Text17)) w.focus(w.FrmKashf.Text23);
  });
  k.Text22.on(Event::KeyEnter, rainfall_rule);

  for (const TypeList& t : kTypeLists) {
    auto* list = static_cast<ComboBox*>(k.find(t.box));
    list->on(Event::Change, [list, &t](Desk& w) { type_change(w, *list, t); });
  }
  const std::pair<ComboBox*, TextBox*> low[] = {{&k.Combo1, &k.Text6}, {&k.Combo2, &k.Text8}, {&k.Combo3, &k.Text10}};
  for (auto [list, amount] : low) {
    list->on(Event::Click, [list](Desk& w) { low_type_click(w, *list); });
    list->on(Event::Leave, [list, amount](Desk& w) { low_type_leave(w, *list, *amount); });
  }
  k.Cmb_NLC.on(Event::Click, Cmb_NLC_click);
}

}  // namespace obsdesk
