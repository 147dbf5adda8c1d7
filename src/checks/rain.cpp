// Rainfall and the pressure tendency on the entry screen.
//
// The observer types the rain of the last three hours in Text50 (Text42 at a
// 12-hour station). The reading goes into the rain table of the day on FrmMain
// (txtrain00 ... txtrain21, restored from the Past row when a report is
// started), and the table gives the six-hour rain and the two day totals. A
// trace "TR" counts as 0 in every sum but is shown when a total comes to 0; a
// "/" (not available) makes every sum it is part of "/".
#include "checks/rain.h"

#include "screens/record.h"
#include "checks/entry_checks.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr const char* kRainCheck = "مــقدار بارندگي را چــك نمـائيـــد";
constexpr const char* kRainConfirm = "آيا مــقدار بارندگي را تائيد مي نمـائيـــد ؟";
constexpr const char* kTendencyCheck = "مــقدار تغييرات فشـار را چــك نمـائيـــد";
constexpr const char* kTendencyOut = "مــقدار تـغييـرات خارج از حد قابل قبول ميباشد";
constexpr const char* kTendencyConfirm = "آيا مــقدار تـغييـرات را تائيد مينمائيد ؟";

bool is_trace(std::string_view t) { return upper(trim(t)) == "TR"; }
bool is_missing(std::string_view t) { return trim(t) == "/"; }

// Digits with at most one point: the only form of a typed amount.
bool digits_and_one_point(std::string_view t) {
  int points = 0;
  for (std::size_t i = 1; i <= len(t); ++i) {
    const std::string c = char_at(t, i);
    if (c == ".") {
      if (++points > 1) return false;
    } else if (!is_digit(c)) {
      return false;
    }
  }
  return true;
}

// The field is emptied and keeps the focus.
void clear_and_keep(Desk& ws, Control& box) {
  ws.set(box, "");
  ws.focus(box);
}

void refuse(Desk& ws, Control& box, const char* words) {
  ws.error(words);
  clear_and_keep(ws, box);
}

RainTable read_table(const Desk& ws) {
  RainTable t;
  for (std::size_t i = 0; i < t.size(); ++i) t[i] = ws.FrmMain.rain[i]->text;
  return t;
}

// Where Enter leaves a box, by UTC hour; the last row (-1) serves every other hour.
struct Exit {
  int hour;
  TextBox FrmKashf::*to;
};

constexpr Exit kRainExits[] = {
    {3, &FrmKashf::Text32}, {9, &FrmKashf::Text32}, {15, &FrmKashf::Text32},  // soil
    {6, &FrmKashf::Text68},                                                   // ground
    {18, &FrmKashf::Text71},                                                  // radiation
    {21, &FrmKashf::Txtmaxwind},                                              // wind of the day
    {-1, &FrmKashf::Text74},                                                  // remarks
};

constexpr Exit kPressureExits[] = {
    {18, &FrmKashf::Txttimesun},
    {21, &FrmKashf::Txtmaxwind},
    {-1, &FrmKashf::Text74},
};

template <std::size_t N>
void walk(Desk& ws, const Exit (&exits)[N]) {
  const int hour = entry_hour(ws);
  for (const Exit& e : exits) {
    if (e.hour == hour || e.hour == -1) {
      ws.focus(ws.FrmKashf.*e.to);
      return;
    }
  }
}

// ---- The rain boxes ---------------------------------------------------------------

// One typing rule for Text42, Text50 and the three sums.
void rain_box_change(Desk& ws, Control& box) {
  const std::string t = box.text;
  if (t.empty() || t == "/") return;
  const std::string u = upper(t);
  if (u == "T" || u == "TR") {
    if (t != "TR") ws.set(box, "TR");
    return;
  }
  if (!digits_and_one_point(t)) refuse(ws, box, kRainCheck);
}

// Entering the rain box tests the height of the high cloud once more, when
// there is a sky with cloud to have it.
void rain_box_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string n = k.Text5.text;
  if (n.empty() || is_trace(n) || val(n) == 0 || val(n) == 9) return;
  if (k.Text22.text.empty()) ws.set(k.Text22, "0");
  const std::string h = upper(k.Text22.text);
  if (h == "X" || h == "0") return;
  cloud_height_ok(ws, k.Text22);
}

void rain_box_leave(Desk& ws, Control& box) {
  FrmKashf& k = ws.FrmKashf;
  // Only here does an empty text mean no rain.
  if (box.text.empty() || box.text == ".") ws.set(box, "0");
  const int hour = entry_hour(ws);
  const std::string reading = box.text;

  // At the main synoptic hours rain is reported only when iR says it is.
  const bool synoptic_hour = hour == 0 || hour == 6 || hour == 12 || hour == 18;
  if (synoptic_hour && left(k.Text48.text, 1) != "1" && reading != "0") {
    refuse(ws, box, kRainCheck);
    return;
  }
  if (!is_missing(reading) && !is_trace(reading)) {
    const double mm = val(reading);
    if (mm > val(ws.FrmOption.txtmaxm3.text)) {
      refuse(ws, box, kRainCheck);
      return;
    }
    if (mm > val(ws.FrmOption.txtmax3.text) && !ws.ask(kRainConfirm)) {
      clear_and_keep(ws, box);
      return;
    }
  }

  const int index = main_hour_index(hour);
  if (index < 0) return;
  if (box.visible) ws.set(*ws.FrmMain.rain[static_cast<std::size_t>(index)], reading);
  // The intermediate hours keep the reading and add nothing up.
  if (hour % 6 != 0) return;

  const RainTable table = read_table(ws);
  const bool night = &box == &k.Text42 && twelve_hour_station(ws);
  ws.set(k.txtpast6, six_hour_rain(table, hour, night));
  if (hour == 6) ws.set(k.Text53, rain_sum(table, {9, 12, 15, 18, 21, 0, 3, 6}));
  if (hour == 0) ws.set(k.Text51, rain_sum(table, {3, 6, 9, 12, 15, 18, 21, 0}));

  if (left(box.text, 1) == "." && val(box.text) > 0) ws.set(box, "0" + box.text);
}

// ---- The tendency boxes -----------------------------------------------------------

// The characteristic a of 5appp is one figure, 0 to 8; anything else would put
// a letter or a blank into the group. Characteristic 4 is a steady pressure: its
// amount is 0.
void Text38_change(Desk& ws) {
  TextBox& box = ws.FrmKashf.Text38;
  const std::string& t = box.text;
  if (t.empty()) return;
  if (t.size() != 1 || t[0] < '0' || t[0] > '8') {
    refuse(ws, box, kTendencyCheck);
    return;
  }
  if (t == "4") ws.set(ws.FrmKashf.Text25, "0");
}

// QNT is added behind the SYNOP groups as it stands, so it may only hold what
// a SYNOP group is made of: figures and "/", groups one blank apart.
constexpr const char* kQntCheck = "مقدار QNT را چك نمائيد";

void TXT_QNT_change(Desk& ws) {
  TextBox& box = ws.FrmKashf.TXT_QNT;
  for (char c : box.text)
    if ((c < '0' || c > '9') && c != '/' && c != ' ') {
      refuse(ws, box, kQntCheck);
      return;
    }
}

// On leaving, every group has its five characters.
void TXT_QNT_leave(Desk& ws) {
  TextBox& box = ws.FrmKashf.TXT_QNT;
  const std::string& t = box.text;
  if (t.empty()) return;
  std::size_t run = 0;
  bool bad = t.front() == ' ' || t.back() == ' ';
  for (std::size_t i = 0; i <= t.size() && !bad; ++i) {
    if (i == t.size() || t[i] == ' ') {
      bad = run != 5;
      run = 0;
    } else {
      ++run;
    }
  }
  if (bad) refuse(ws, box, kQntCheck);
}

void Text25_change(Desk& ws) {
  TextBox& box = ws.FrmKashf.Text25;
  if (!digits_and_one_point(box.text)) refuse(ws, box, kTendencyCheck);
}

void Text25_leave(Desk& ws) {
  TextBox& box = ws.FrmKashf.Text25;
  if (box.text.empty() || box.text == ".") return;
  const double hpa = val(box.text);
  if (hpa > 20) {
    refuse(ws, box, kTendencyOut);
  } else if (hpa > 5 && !ws.ask(kTendencyConfirm)) {
    clear_and_keep(ws, box);
  }
}

void Text25_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text25.text.empty()) return;
  const std::string n = k.Text5.text;
  if (is_trace(n) || (n != "0" && n != "9")) {
    ws.focus(k.Text6);
    return;
  }
  // A clear or invisible sky has no layers to type.
  const int hour = entry_hour(ws);
  if (hour == 3 || hour == 15) {
    ws.focus(k.Text59);
  } else {
    rainfall_rule(ws);
  }
}

}  // namespace

std::string rain_sum(const RainTable& table, std::initializer_list<int> hours) {
  bool missing = false, trace = false;
  double sum = 0;
  for (int h : hours) {
    const int i = main_hour_index(h);
    if (i < 0) continue;
    const std::string& t = table[static_cast<std::size_t>(i)];
    if (is_missing(t)) {
      missing = true;
    } else if (is_trace(t)) {
      trace = true;
    } else {
      sum += val(t);
    }
  }
  if (missing) return "/";
  if (sum == 0 && trace) return "TR";
  return num(sum);
}

std::string six_hour_rain(const RainTable& table, int hour, bool night_reading) {
  switch (hour) {
    case 18: return rain_sum(table, {15, 18});
    case 12: return rain_sum(table, {9, 12});
    case 6: return night_reading ? rain_sum(table, {15, 3, 6}) : rain_sum(table, {3, 6});
    case 0: return rain_sum(table, {21, 0});
    default: return "";
  }
}

int entry_hour(const Desk& ws) {
  const std::string& t = ws.FrmKashf.Text1.text;
  if (t.empty()) return -1;
  const double h = val(t);
  return h >= 0 && h < 100 ? static_cast<int>(h) : -1;  // no hour of a day beyond that
}

void wire_rain(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (Control* c : Controls{&k.Text42, &k.Text50, &k.Text51, &k.Text53, &k.txtpast6})
    c->on(Event::Change, [c](Desk& w) { rain_box_change(w, *c); });
  for (Control* c : Controls{&k.Text42, &k.Text50}) {
    c->on(Event::Enter, rain_box_enter);
    c->on(Event::Leave, [c](Desk& w) { rain_box_leave(w, *c); });
    c->on(Event::KeyEnter, [](Desk& w) { walk(w, kRainExits); });
  }
  k.Text18.on(Event::KeyEnter, [](Desk& w) { walk(w, kPressureExits); });
  k.Text38.on(Event::Change, Text38_change);
  k.TXT_QNT.on(Event::Change, TXT_QNT_change);
  k.TXT_QNT.on(Event::Leave, TXT_QNT_leave);
  k.Text25.on(Event::Change, Text25_change);
  k.Text25.on(Event::Leave, Text25_leave);
  k.Text25.on(Event::KeyEnter, Text25_key_enter);
}

}  // namespace obsdesk
