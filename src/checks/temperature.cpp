// The air thermometers of the entry screen: dry and wet bulb, the temperature
// of twelve hours before, the extremes, and the station pressure typed by hand
// at the hours when a 12-hour station reads no barometer.
#include "checks/temperature.h"

#include <array>
#include <optional>

#include "checks/limits.h"
#include "checks/temperature_words.h"
#include "screens/record.h"
#include "checks/entry_checks.h"
#include "screens/boards.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "checks/pressure_entry.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr int kAir = 1, kWetBulb = 2;

// Present weather of snow and ice: rain and snow, snow, ice pellets, showers of
// snow and hail, thunderstorm with hail.
bool snow_or_ice(int ww) {
  return (ww >= 68 && ww <= 79) || (ww >= 83 && ww <= 86) || ww == 88 || ww == 93 || ww == 94;
}

// Asks whether the observer types RH in place of the wet bulb. True on Yes: the
// humidity mode is on and RH takes the focus.
bool humidity_instead(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (ws.ask(words::kHumidityInstead)) {
    ws.humidity_mode = 1;
    k.Text31.locked = false;
    ws.focus(k.Text31);
    return true;
  }
  ws.humidity_mode = 0;
  return false;
}

// The hard and then the soft air pair on the dry bulb, rounded to one decimal
// between them. False when the box was emptied.
bool dry_bulb_within_air(Desk& ws) {
  Control& tdry = ws.FrmKashf.Text27;
  if (!within_hard(ws, tdry, val(tdry.text), kAir, words::kTemperatureOutOfRange)) return false;
  ws.set(tdry, round_text(val(tdry.text), 1));
  return within_soft(ws, tdry, val(tdry.text), kAir, words::kConfirmBoxBefore);
}

// ---- TDRY -----------------------------------------------------------------------

void Text27_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  thermometer_typing(ws, k.Text27, false);
  if (!is_reading(k.Text27.text) || val(k.Text27.text) <= 3) return;
  if (snow_or_ice(present_weather_code(ws)) && !ws.ask(words::kConfirmTemperatureSnow)) refuse(ws, k.Text27);
}

void Text27_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmMain& m = ws.FrmMain;
  // A METAR continues the last main report three hours on.
  if (report_kind(ws) == ReportKind::Metar) {
    const double hour = val(k.Text1.text);
    const bool follows = m.txtutcpast.text == "21" ? hour == 0 : hour == val(m.txtutcpast.text) + 3;
    if (!follows) {
      ws.error(words::kNoWeatherThreeHoursBefore);
      ws.set(k.Text1, "");
      ws.focus(k.Text1);
      return;
    }
  }
  // The hour is stored in two figures.
  if (len(k.Text1.text) == 1) ws.set(k.Text1, "0" + k.Text1.text);
  // Whatever was derived from the old readings goes.
  empty_derived(ws);
  // A sky hidden by fog needs its vertical visibility.
  if (!twelve_hour_station(ws) && k.Text5.text == "9" && k.Text12.text.empty()) {
    ws.error(words::kEnterVerticalVisibility);
    ws.focus(k.Text12);
    return;
  }
  // The temperature of twelve hours before.
  Control& t12 = k.txtt12;
  if (len(t12.text) == 1 && is_digit(t12.text)) ws.set(t12, "0" + t12.text);
  if (!t12.text.empty() && t12.text != "-") {
    // A No empties the box; nothing follows either way.
    if (within_hard(ws, t12, val(t12.text), kAir, words::kTemperatureOutOfRange))
      static_cast<void>(within_soft(ws, t12, val(t12.text), kAir, words::kConfirmBoxBefore));
  }
}

void Text27_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  Control& tdry = k.Text27;
  if (twelve_hour_night(ws)) {
    // Only the dry bulb is read: the station pressure is typed by hand.
    if (tdry.text.empty()) return;
    if (is_reading(tdry.text)) {
      if (!dry_bulb_within_air(ws)) return;
      if (val(tdry.text) < -1 && humidity_instead(ws)) return;
    }
    k.Text18.locked = false;
    ws.focus(k.Text18);
    return;
  }
  const ReportKind kind = report_kind(ws);
  const bool timed = kind == ReportKind::Metar30 || kind == ReportKind::Speci;
  if (!(timed && k.txt1.text.empty()) && !tdry.text.empty() && val(tdry.text) < -2 && humidity_instead(ws)) return;
  if (!tdry.text.empty()) ws.focus(k.Text28);
}

void Text27_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmMain& m = ws.FrmMain;
  Control& tdry = k.Text27;
  const std::string hour = k.Text1.text.empty() ? k.txt1.text : k.Text1.text;
  // With an hour given, a dry bulb outside the air's hard pair is refused and
  // nothing below runs, so no table takes a value that was turned away.
  if (!hour.empty() && is_reading(tdry.text) &&
      !within_hard(ws, tdry, val(tdry.text), kAir, words::kTemperatureOutOfRange))
    return;
  // The barometer box of the station.
  if (val(ws.FrmOption.txtPnegar.text) == 1) {
    k.FraNegar.visible = true;
  } else {
    k.FraNegar.visible = false;
    k.Text14.visible = true;
  }
  // The day's table of temperatures that this report writes back.
  const int index = k.Text1.text.empty() ? -1 : main_hour_index(int_val(k.Text1.text));
  const bool keeps_table =
      report_kind(ws) == ReportKind::SynMet || (report_kind(ws) == ReportKind::Synop && twelve_hour_station(ws));
  if (keeps_table && index >= 0) {
    for (int i = 0; i < 8; ++i) {
      const std::size_t j = static_cast<std::size_t>(i);
      ws.set(*m.TB[j], i == index ? tdry.text : m.T[j]->text);
    }
  }
  // 4.
  if (m.txtutcpastb.visible && index >= 0 && k.txtt12.text.empty()) {
    ws.error(words::kEnterTemperature12);
    ws.focus(k.txtt12);
  }
}

// ---- TWET -----------------------------------------------------------------------

// The dry bulb is tested again as the wet bulb is begun.
void Text28_enter(Desk& ws) {
  Control& tdry = ws.FrmKashf.Text27;
  if (!is_reading(tdry.text)) return;
  ws.set(tdry, round_text(val(tdry.text), 1));
  if (!within_hard(ws, tdry, val(tdry.text), kAir, words::kTemperatureOutOfRange)) return;
  // A No empties the dry bulb; the wet bulb is begun either way.
  static_cast<void>(within_soft(ws, tdry, val(tdry.text), kAir, words::kConfirmBoxBefore));
}

void Text28_leave(Desk& ws) {
  Control& twet = ws.FrmKashf.Text28;
  if (!is_reading(twet.text)) return;
  if (!within_hard(ws, twet, val(twet.text), kWetBulb, words::kTemperatureOutOfRange)) return;
  ws.set(twet, round_text(val(twet.text), 1));
  if (!within_soft(ws, twet, val(twet.text), kWetBulb, words::kConfirmBoxBefore)) return;
  choose_barometer_box(ws, true);
}

// ---- txtt12 ---------------------------------------------------------------------

void txtt12_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  Control& t12 = k.txtt12;
  if (t12.text.empty()) return;
  if (t12.text != "-" && !within_soft(ws, t12, val(t12.text), kAir, words::kConfirmBoxBefore)) return;
  ws.focus(k.Text28.reachable() ? static_cast<Control&>(k.Text28) : k.Text18);
}

// ---- TMIN3, TMAX3 ---------------------------------------------------------------

struct HourCheck {
  int index;             // in the day's table
  const char* above_max;  // a reading above TMAX3
  const char* below_min;  // a reading below TMIN3
};

// The three hours before 03 and before 15, in the order they are compared.
constexpr std::array<HourCheck, 3> kBefore03 = {{
    {0, "مقدار دماي حداكثر را با دماي ساعت 00 چــك نمـائيد", "مقدار دماي حداقل را با دماي ساعت 00 چــك نمـائيد"},
    {7, "مقدار دماي حداكثر را با دماي ساعت 21 چــك نمـائيد", "مقدار دماي حداقل را با دماي ساعت 21 چــك نمـائيد"},
    {6, "مقدار دماي حداكثر را با دماي ساعت 18  چــك نمـائيد", "مقدار دماي حداقل را با دماي ساعت 18  چــك نمـائيد"},
}};
constexpr std::array<HourCheck, 3> kBefore15 = {{
    {4, "مقدار دماي حداكثر را با دماي ساعت 12 چــك نمـائيد", "مقدار دماي حداقل را با دماي ساعت 12 چــك نمـائيد"},
    {3, "مقدار دماي حداكثر را با دماي ساعت 09 چــك نمـائيد", "مقدار دماي حداقل را با دماي ساعت 09 چــك نمـائيد"},
    {2, "مقدار دماي حداكثر را با دماي ساعت 06 چــك نمـائيد", "مقدار دماي حداقل را با دماي ساعت 06 چــك نمـائيد"},
}};

// The lowest of the day's readings that stand as numbers.
std::optional<double> lowest_reading(FrmMain& m) {
  std::optional<double> low;
  for (TextBox* t : m.T)
    if (is_reading(t->text) && (!low || val(t->text) < *low)) low = val(t->text);
  return low;
}

// An extreme against the main hours before it: a breach is told; TMIN3 then
// takes the lowest reading of the day, TMAX3 is emptied. False on a breach.
bool extreme_against_hours(Desk& ws, Control& box, bool maximum) {
  FrmKashf& k = ws.FrmKashf;
  FrmMain& m = ws.FrmMain;
  if (k.Text1.text.empty()) return true;
  const double hour = val(k.Text1.text);
  const std::array<HourCheck, 3>* hours = hour == 3 ? &kBefore03 : hour == 15 ? &kBefore15 : nullptr;
  if (hours == nullptr) return true;
  const double v = val(box.text);
  for (const HourCheck& h : *hours) {
    const std::string& reading = m.T[static_cast<std::size_t>(h.index)]->text;
    if (!is_reading(reading)) continue;
    const double r = val(reading);
    if (maximum ? r > v : r < v) {
      ws.error(maximum ? h.above_max : h.below_min);
      if (maximum) {
        ws.set(box, "");
      } else if (const auto low = lowest_reading(m)) {
        ws.set(box, num(*low));
      }
      ws.focus(box);
      return false;
    }
  }
  return true;
}

void Text59_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  Control& tmin = k.Text59;
  if (!is_reading(tmin.text)) return;
  if (!within_hard(ws, tmin, val(tmin.text), kAir, words::kExtremeOutOfRange)) return;
  if (is_reading(k.Text27.text) && val(tmin.text) > val(k.Text27.text)) {
    refuse(ws, tmin, words::kCheckTemperature);
    return;
  }
  extreme_against_hours(ws, tmin, false);
}

void Text60_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  Control& tmax = k.Text60;
  if (!is_reading(tmax.text)) return;
  if (!within_hard(ws, tmax, val(tmax.text), kAir, words::kExtremeOutOfRange)) return;
  if (!within_soft(ws, tmax, val(tmax.text), kAir, words::kConfirmTemperature)) return;
  if (k.Text59.text.empty()) {
    ws.error(words::kEnterMaximum);
    ws.focus(k.Text59);
    return;
  }
  if (val(k.Text59.text) > val(tmax.text)) {
    refuse(ws, tmax, words::kMinimumAboveMaximum);
    return;
  }
  if (is_reading(k.Text27.text) && val(tmax.text) < val(k.Text27.text)) {
    refuse(ws, tmax, words::kCheckMaximum);
    return;
  }
  if (!extreme_against_hours(ws, tmax, true)) return;
  ws.set(tmax, round_text(val(tmax.text), 1));
}

// With cloud in the sky the heights of the middle and high layer are tested
// once more before the extremes.
void Text59_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& n = k.Text5.text;
  if (n.empty() || n == "TR" || val(n) == 0 || val(n) == 9) return;
  if (k.Text22.text.empty()) ws.set(k.Text22, "0");
  if (cloud_height_ok(ws, k.Text16)) cloud_height_ok(ws, k.Text22);
}

void Text59_key_enter(Desk& ws) {
  if (!ws.FrmKashf.Text59.text.empty()) ws.focus(ws.FrmKashf.Text60);
}

// From the extremes to the rain of the period, in the box the station uses.
void Text60_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text60.text.empty()) return;
  ws.focus(k.Text42.visible ? static_cast<Control&>(k.Text42) : k.Text50);
}

// ---- QFE typed by hand ------------------------------------------------------------

// Figures and one point, as any published station pressure is.
void Text18_change(Desk& ws) {
  Control& qfe = ws.FrmKashf.Text18;
  int points = 0;
  for (std::size_t i = 1; i <= len(qfe.text); ++i) {
    const std::string ch = char_at(qfe.text, i);
    if (is_digit(ch)) continue;
    if (ch == "." && ++points == 1) continue;
    refuse(ws, qfe, words::kCheckPressure);
    return;
  }
}

}  // namespace

// Every handler of the dry, wet and attached thermometers and of txtt12 is
// bound here, the pressure routine's among them, so one place shows all that
// a key in those boxes sets off.
void bind_temperature_checks(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Text27.on(Event::Change, Text27_change);
  k.Text27.on(Event::Enter, Text27_enter);
  k.Text27.on(Event::KeyEnter, Text27_key_enter);
  k.Text27.on(Event::Leave, Text27_leave);
  k.Text28.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.Text28, false); });
  k.Text28.on(Event::Enter, Text28_enter);
  k.Text28.on(Event::KeyEnter, Text28_key_enter);
  k.Text28.on(Event::Leave, Text28_leave);
  k.Text13.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.Text13, false); });
  k.Text13.on(Event::KeyEnter, Text13_key_enter);
  for (Control* c : Controls{&k.Text27, &k.Text28, &k.Text13}) c->on(Event::KeyUp, thermometer_key_up);
  k.txtt12.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.txtt12, false); });
  k.txtt12.on(Event::KeyEnter, txtt12_key_enter);
  k.txtt12.on(Event::KeyUp, txtt12_key_up);
  k.Text59.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.Text59, false); });
  k.Text60.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.Text60, false); });
  k.Text59.on(Event::Enter, Text59_enter);
  k.Text59.on(Event::Leave, Text59_leave);
  k.Text60.on(Event::Leave, Text60_leave);
  k.Text59.on(Event::KeyEnter, Text59_key_enter);
  k.Text60.on(Event::KeyEnter, Text60_key_enter);
  k.Text18.on(Event::Change, Text18_change);
}

}  // namespace obsdesk
