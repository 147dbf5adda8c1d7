// Soil temperatures, the ground minimum, snow, the evaporation pan, wind run
// over the pan, sunshine and radiation.
#include <array>
#include <optional>

#include "checks/limits.h"
#include "checks/temperature.h"
#include "checks/temperature_words.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

// The pan's area, as the two factors the station program has for it: cc of
// water to tenths of mm of evaporation, and mm back to cc.
inline constexpr double kWaterToEvaporation = 11426.79;
inline constexpr double kEvaporationToWater = 1142.679;

std::optional<GroundMinimum> ground_minimum(std::string_view text, NumberReader read) {
  const std::string t = trim(text);
  if (t.empty() || t == "/" || t == "." || t == "-" || t == "-.") return std::nullopt;
  double v = read(t);
  const bool ends_in_5 = t.back() == '5';
  GroundMinimum g;
  if (v < 0) {
    if (ends_in_5) v -= 0.1;
    v = -v;
    g.sign = "1";
  } else {
    if (ends_in_5) v += 0.1;
    g.sign = "0";
  }
  g.temp = pad_left(round_text(v, 0), 2);
  return g;
}

std::string snow_depth_figures(std::string_view text, NumberReader read) {
  if (text.empty()) return "";
  const double v = round_to(read(text), 0);
  if (v == 0) return "997";
  return pad_left(num(v), 3);
}

double evaporation_from_water(double water_cc, double rain_mm) {
  return round_to(rain_mm + water_cc * 10 / kWaterToEvaporation, 1);
}

double water_from_evaporation(double evaporation_mm, double rain_mm) {
  return round_to((evaporation_mm - rain_mm) * kEvaporationToWater, 0);
}

namespace {

constexpr int kGround = 5;

// ---- Soil -----------------------------------------------------------------------

struct SoilDepth {
  TextBox FrmKashf::*box;
  int row;  // limit row of the Station profile
};
constexpr std::array<SoilDepth, 6> kSoil = {{
    {&FrmKashf::Text32, 5}, {&FrmKashf::Text33, 6}, {&FrmKashf::Text34, 6},
    {&FrmKashf::Text35, 6}, {&FrmKashf::Text36, 7}, {&FrmKashf::Text37, 7},
}};

void soil_leave(Desk& ws, Control& box, int row) {
  if (!is_reading(box.text)) return;
  if (!within_hard(ws, box, val(box.text), row, words::kExtremeOutOfRange)) return;
  // Last of the box's tests: a No has emptied the box already, nothing follows.
  static_cast<void>(within_soft(ws, box, val(box.text), row, words::kConfirmTemperature));
}

// ---- Ground minimum and snow ------------------------------------------------------

// Whole degrees only, "/" when not read.
void Text68_change(Desk& ws) {
  Control& g = ws.FrmKashf.Text68;
  const std::string& t = g.text;
  if (t.empty() || t == "-" || t == "-." || t == "/") return;
  if (thermometer_text_ok(t, true) && t.find('.') == std::string::npos) return;
  refuse(ws, g, words::kCheckTemperature);
}

// Accepted by the hard pair, the minimum gives the figures of 3EsnTgTg at once,
// so that the state of ground chosen during entry has them.
void Text68_leave(Desk& ws) {
  Control& g = ws.FrmKashf.Text68;
  if (!is_reading(g.text)) return;
  if (!within_hard(ws, g, val(g.text), kGround, words::kExtremeOutOfRange)) return;
  if (const auto m = ground_minimum(g.text)) {
    ws.GroundSign = m->sign;
    ws.GroundTemp = m->temp;
  }
}

// The soft pair of the ground minimum, asked as the next boxes are entered.
bool ground_minimum_soft_ok(Desk& ws) {
  Control& g = ws.FrmKashf.Text68;
  if (!is_reading(g.text)) return true;
  return within_soft(ws, g, val(g.text), kGround, words::kConfirmTemperature);
}

// "", "/", "//" and figures.
bool data_text_ok(const std::string& t) {
  if (t.empty() || t == "/" || t == "//") return true;
  for (std::size_t i = 1; i <= len(t); ++i)
    if (!is_digit(char_at(t, i))) return false;
  return true;
}

void data_change(Desk& ws, Control& box) {
  if (data_text_ok(box.text)) return;
  refuse(ws, box, words::kCheckData);
}

bool ground_state_set(Desk& ws) { return !ws.FrmDisplayKashf.Text52.text.empty(); }
// A state from the table of ground without snow leaves the snow group blank.
bool ground_without_snow(Desk& ws) { return ground_state_set(ws) && trim(ws.FrmCode.Text92.text).empty(); }

// Snow needs the state of ground first.
void snow_enter(Desk& ws, Control& box) {
  if (ground_state_set(ws)) return;
  ws.error(words::kSetStateOfGround);
  ws.set(box, "");
  ws.handoffs.open_ground_picker(ws);
}

void snow_change(Desk& ws, Control& box) {
  if (!data_text_ok(box.text)) {
    refuse(ws, box, words::kCheckData);
    return;
  }
  if (is_reading(box.text) && val(box.text) > 0 && ground_without_snow(ws)) {
    refuse(ws, box, words::kContradictsGround);
  }
}

void Text69_change(Desk& ws) {
  Control& total = ws.FrmKashf.Text69;
  snow_change(ws, total);
  ws.SnowDepth = snow_depth_figures(total.text);
}

void Text69_enter(Desk& ws) {
  if (!ground_minimum_soft_ok(ws)) return;
  snow_enter(ws, ws.FrmKashf.Text69);
}

// ---- Evaporation pan ------------------------------------------------------------

bool pan_exempt(const std::string& t) { return !is_reading(t); }

bool pan_hard(Desk& ws, Control& box, double low, double high) {
  const double v = val(box.text);
  if (v <= high && v >= low) return true;
  refuse(ws, box, words::kExtremeOutOfRange);
  return false;
}

bool pan_soft(Desk& ws, Control& box, double low, double high) {
  if (pan_exempt(box.text)) return true;
  const double v = val(box.text);
  if (v <= high && v >= low) return true;
  if (ws.ask(words::kConfirmTemperature)) return true;
  refuse(ws, box);
  return false;
}

void Text63_leave(Desk& ws) {
  Control& low = ws.FrmKashf.Text63;
  if (pan_exempt(low.text)) return;
  if (pan_hard(ws, low, -3, 40)) pan_soft(ws, low, 1, 30);
}

void Text64_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  Control& high = k.Text64;
  if (pan_exempt(high.text)) return;
  if (!pan_hard(ws, high, 1, 40)) return;
  if (k.Text63.text.empty()) {
    ws.error(words::kEnterPanMinimum);
    ws.focus(k.Text63);
    return;
  }
  if (is_reading(k.Text63.text) && val(k.Text63.text) > val(high.text)) {
    refuse(ws, high, words::kPanMinimumAboveMaximum);
    return;
  }
  pan_soft(ws, high, 1, 30);
}

// The rain of 06 to 06 of the evaporation day: nothing when it is empty, "/"
// when it was not measured, a trace as 0.
struct PanRain {
  bool present = false;
  bool missing = false;
  double mm = 0;
};
PanRain pan_rain(Desk& ws) {
  const std::string& t = ws.FrmKashf.Text53.text;
  if (t.empty()) return {};
  if (t == "/") return {true, true, 0};
  if (t == "TR") return {true, false, 0};
  return {true, false, val(t)};
}

void Text65_key_up(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& w = k.Text65.text;
  if (w.empty() || w == "/" || w == "-") return;
  const PanRain r = pan_rain(ws);
  if (!r.present) return;
  if (r.missing) {
    ws.set(k.Text66, "/");
    return;
  }
  const double e = evaporation_from_water(val(w), r.mm);
  ws.set(k.Text66, num(e));
  if (e < 0) {
    ws.error(words::kNegativeFromWater);
    ws.focus(k.Text65);
  }
}

void Text66_key_up(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& e = k.Text66.text;
  if (e.empty() || e == "/" || e == "." || e == "-") return;
  const PanRain r = pan_rain(ws);
  if (!r.present) return;
  if (r.missing) {
    ws.set(k.Text65, "/");
    return;
  }
  const double w = water_from_evaporation(val(e), r.mm);
  ws.set(k.Text65, num(w));
  if (w < 0) {
    ws.error(words::kNegativeEvaporation);
    ws.focus(k.Text66);
  }
}

void Text66_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& e = k.Text66.text;
  if (e.empty()) {
    ws.set(k.Text65, "");
    return;
  }
  if (e == "/") {
    ws.set(k.Text65, "/");
    ws.focus(k.Text67);
    return;
  }
  int points = 0;
  for (std::size_t i = 1; i <= len(e); ++i) {
    const std::string ch = char_at(e, i);
    if (is_digit(ch) || (ch == "." && ++points == 1)) continue;
    ws.error(words::kCheckWater);
    ws.set(k.Text66, "");
    return;
  }
}

void Text66_leave(Desk& ws) {
  Control& e = ws.FrmKashf.Text66;
  if (!is_reading(e.text)) return;
  const double v = val(e.text);
  if (v > val(ws.FrmOption.txtmaxm9.text)) {
    refuse(ws, e, words::kEvaporationOutOfRange);
  } else if (v > val(ws.FrmOption.txtmax9.text) && !ws.ask(words::kConfirmEvaporation)) {
    refuse(ws, e);
  }
}

// ---- Wind run, sunshine ---------------------------------------------------------

void Text67_change(Desk& ws) {
  Control& run = ws.FrmKashf.Text67;
  const std::string& t = run.text;
  if (t.empty() || t == "." || t == "/" || t == "//") return;
  for (std::size_t i = 1; i <= len(t); ++i) {
    if (is_digit(char_at(t, i))) continue;
    refuse(ws, run, words::kCheckWindRun);
    return;
  }
}

void Txttimesun_leave(Desk& ws) {
  Control& sun = ws.FrmKashf.Txttimesun;
  const std::string& t = sun.text;
  if (t.empty() || t == "/") return;
  const double v = val(t);
  if (!is_numeric(t) || v > 18 || v < 0) {
    refuse(ws, sun, words::kCheckSunshine);
  }
}

}  // namespace

void bind_ground_checks(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (const SoilDepth& d : kSoil) {
    Control& box = k.*d.box;
    const int row = d.row;
    box.on(Event::Change, [&box](Desk& w) { thermometer_typing(w, box, false); });
    box.on(Event::Leave, [&box, row](Desk& w) { soil_leave(w, box, row); });
  }
  k.Text68.on(Event::Change, Text68_change);
  k.Text68.on(Event::Leave, Text68_leave);
  k.Text68.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.Text69); });
  k.Text69.on(Event::Change, Text69_change);
  k.Text69.on(Event::Enter, Text69_enter);
  k.Text70.on(Event::Change, [](Desk& w) { snow_change(w, w.FrmKashf.Text70); });
  k.Text70.on(Event::Enter, [](Desk& w) { snow_enter(w, w.FrmKashf.Text70); });
  for (Control* c : Controls{&k.Text71, &k.Text72, &k.Text73})
    c->on(Event::Change, [c](Desk& w) { data_change(w, *c); });

  k.Text63.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.Text63, true); });
  k.Text64.on(Event::Change, [](Desk& w) { thermometer_typing(w, w.FrmKashf.Text64, true); });
  k.Text63.on(Event::Enter, [](Desk& w) { ground_minimum_soft_ok(w); });
  k.Text63.on(Event::Leave, Text63_leave);
  k.Text64.on(Event::Enter, [](Desk& w) { pan_soft(w, w.FrmKashf.Text63, -1, 20); });
  k.Text64.on(Event::Leave, Text64_leave);
  k.Text65.on(Event::Enter, [](Desk& w) { pan_soft(w, w.FrmKashf.Text64, 5, 25); });
  k.Text65.on(Event::KeyUp, Text65_key_up);
  k.Text65.on(Event::KeyEnter, [](Desk& w) { w.focus(w.FrmKashf.Text66); });
  k.Text66.on(Event::KeyUp, Text66_key_up);
  k.Text66.on(Event::Change, Text66_change);
  k.Text66.on(Event::Leave, Text66_leave);
  k.Text67.on(Event::Change, Text67_change);
  k.Txttimesun.on(Event::Leave, Txttimesun_leave);
}

}  // namespace obsdesk
