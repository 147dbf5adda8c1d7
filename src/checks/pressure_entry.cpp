#include "checks/pressure_entry.h"

#include "checks/temperature_words.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "physics/psychrometry.h"
#include "checks/tendency.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

bool barograph_station(Desk& ws) { return val(ws.FrmOption.txtPnegar.text) == 1; }

bool any_dash(Controls boxes) {
  for (Control* c : boxes)
    if (c->text == "-") return true;
  return false;
}

bool all_filled(Controls boxes) {
  for (Control* c : boxes)
    if (c->text.empty()) return false;
  return true;
}

PressureInputs inputs(Desk& ws, double wet) {
  const FrmOption& st = ws.FrmOption;
  const FrmKashf& k = ws.FrmKashf;
  PressureInputs in;
  in.h = val(st.Txth.text);
  in.q1 = val(st.txtq1.text);
  in.q2 = val(st.txtq2.text);
  in.T12 = k.txtt12.text;
  in.TDRY = val(k.Text27.text);
  in.TWET = wet;
  in.TP = val(k.Text13.text);
  in.PREAD = val(k.Text14.text);
  in.txtci = val(st.txtci.text);
  in.mercury = val(st.txtPsang.text) == 1;
  in.barograph = val(k.Text41.text);
  return in;
}

// What the routine reported, told as it happened; a wet bulb that made the
// vapour pressure negative is emptied.
void tell(Desk& ws, const PressureReport& report) {
  for (const PressureNotice& n : report.notices) {
    if (n.fault)
      ws.message(n.text);
    else
      ws.error(n.text);
  }
  if (report.vapour_below_zero) ws.set(ws.FrmKashf.Text28, "");
}

void publish_all(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const PublishedPressure p = publish(ws.pressure, report_kind(ws));
  ws.set(k.Text31, p.RH);
  ws.set(k.Text15, p.TC);
  ws.set(k.Text18, p.QFE);
  ws.set(k.Text30, p.EHPA);
  ws.set(k.Text21, p.QFF);
  ws.set(k.Text19, p.QNH);
  ws.set(k.Text20, p.QIN);
  ws.set(k.Text24, p.H850);
  k.Text29.fore_color = kWindowText;
  ws.set(k.Text29, p.TDEW);
}

// The derived boxes while a barometer reading is being typed: the dew point
// shows a greyed "0".
void clear_for_reading(Desk& ws, bool humidity_too) {
  FrmKashf& k = ws.FrmKashf;
  k.Text29.fore_color = kButtonText;
  ws.set(k.Text29, "0");
  for (Control* c : Controls{&k.Text18, &k.Text19, &k.Text30, &k.Text15, &k.Text21, &k.Text20, &k.Text24})
    ws.set(*c, "");
  if (!humidity_too) return;
  if (ws.humidity_mode == 1)
    ws.set(k.Text28, "");
  else
    ws.set(k.Text31, "");
}

bool digits(const std::string& s, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i <= to; ++i)
    if (!is_digit(char_at(s, i))) return false;
  return true;
}

// The pressure limits of the Station profile; the lower pair only for a text of
// three figures.
Reading pressure_limits(Desk& ws, Control& box, double v, bool lower_too) {
  const FrmOption& st = ws.FrmOption;
  if (lower_too && v < val(st.txtminm4.text)) {
    ws.error(words::kPressureTooLow);
    ws.set(box, "");
    return Reading::Refused;
  }
  if (v > val(st.txtmaxm4.text)) {
    ws.error(words::kPressureTooHigh);
    ws.set(box, "");
    return Reading::Refused;
  }
  if ((lower_too && v < val(st.txtmin4.text)) || v > val(st.txtmax4.text)) {
    if (!ws.ask(words::kConfirmPressure)) {
      ws.set(box, "");
      ws.focus(box);
      return Reading::Refused;
    }
  }
  return Reading::Good;
}

// The focus after a barometer reading: the tendency for the SYNOP kinds, else
// the remarks under a clear or hidden sky, else the first cloud layer.
void reading_key_enter(Desk& ws, Control& box) {
  FrmKashf& k = ws.FrmKashf;
  if (len(box.text) < 3) return;
  if (is_synop_kind(report_kind(ws))) {
    ws.focus(k.Text38);
    ws.post(open_tendency_dialog);  // once the focus stands on Text38
    return;
  }
  const std::string& n = k.Text5.text;
  if (!n.empty() && n != "TR" && (val(n) == 0 || val(n) == 9)) {
    ws.focus(k.Text74);
  } else if (!k.Text18.text.empty()) {
    ws.focus(k.Text6);
  }
}

// ---- Handlers ---------------------------------------------------------------------

void Text14_change(Desk& ws) {
  clear_for_reading(ws, true);
  if (check_reading(ws, ws.FrmKashf.Text14, false) == Reading::Good && reading_guard(ws)) compute_pressure(ws);
}

// The attached thermometer is tested again as the reading is begun.
void Text14_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const FrmOption& st = ws.FrmOption;
  if (k.Text13.text.empty()) {
    ws.error(words::kEnterAttached);
    ws.focus(k.Text13);
    return;
  }
  if (k.Text13.text == "-") return;
  if (!attached_thermometer_ok(ws, 50)) return;
  const double tp = val(k.Text13.text);
  if (tp < val(st.txtminm1.text) || tp > val(st.txtmaxm1.text)) {
    ws.error(words::kTemperatureOutOfRange);
    ws.set(k.Text13, "");
    ws.focus(k.Text13);
  }
}

// An empty barometer box keeps the focus, unless it is sent back to the attached
// thermometer, which is read first.
void Text14_leave(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  choose_barometer_box(ws, false);
  Control& in_use = barograph_station(ws) ? static_cast<Control&>(k.Text41) : k.Text14;
  if (in_use.text.empty() && ws.focused() != &k.Text13) {
    ws.focus(in_use);
    empty_derived(ws);
  }
}

void Text41_change(Desk& ws) {
  clear_for_reading(ws, false);
  check_reading(ws, ws.FrmKashf.Text41, true);
}

void Text41_leave(Desk& ws) {
  clear_for_reading(ws, false);
  if (check_reading(ws, ws.FrmKashf.Text41, true) == Reading::Good && barograph_guard(ws)) compute_pressure(ws);
}

}  // namespace

void Text13_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text13.text.empty()) return;
  if (k.Text13.text != "-" && !attached_thermometer_ok(ws, 45)) return;
  ws.focus(k.Text14);
}

namespace {

// A thermometer box that a rule has emptied takes with it every value worked out
// from it: humidity, vapour pressure, dew point and the pressures. Left alone
// they would be those of a reading that was refused.
void empty_values_of_refused_reading(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const bool wet_typed = ws.humidity_mode != 1;
  const bool refused = k.Text27.text.empty() || k.Text13.text.empty() || (wet_typed && k.Text28.text.empty());
  if (!refused) return;
  for (Control* c : Controls{&k.Text15, &k.Text18, &k.Text19, &k.Text20, &k.Text21, &k.Text24, &k.Text29, &k.Text30})
    ws.set(*c, "");
  ws.set(wet_typed ? k.Text31 : k.Text28, "");
}

}  // namespace

void thermometer_key_up(Desk& ws) {
  if (thermometer_guard(ws))
    compute_pressure(ws);
  else
    empty_values_of_refused_reading(ws);
}

void txtt12_key_up(Desk& ws) {
  if (t12_guard(ws)) compute_pressure(ws);
}

namespace {

// RH typed in the humidity mode: every change but "" and "." is the new raw
// value; the published value that comes back counts as typed too.
void Text31_change(Desk& ws) {
  const std::string& t = ws.FrmKashf.Text31.text;
  if (!t.empty() && t != ".") ws.typed_RH = val(t);
}

void Text31_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text31.text.empty()) return;
  k.Text31.locked = true;
  ws.focus(barograph_station(ws) ? static_cast<Control&>(k.Text41) : k.Text13);
}

void Text31_leave(Desk& ws) {
  Control& rh = ws.FrmKashf.Text31;
  if (rh.text.empty()) return;
  const double v = val(rh.text);
  if (v > 100 || v < 0.2) {
    ws.set(rh, "");
    rh.locked = false;
    ws.focus(rh);
  }
}

// The vapour pressure box holds two decimals whatever is written to it.
void Text30_change(Desk& ws) {
  Control& e = ws.FrmKashf.Text30;
  if (!e.text.empty()) ws.set(e, round_text(val(e.text), 2));
}

}  // namespace

// A wet bulb cannot stand above the dry bulb: above -3.2 a margin of 0.2 is
// allowed for the reading.
void Text28_key_enter(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const std::string& wet = k.Text28.text;
  const std::string& dry = k.Text27.text;
  if (wet.empty()) return;
  if (wet != "-" && !dry.empty() && dry != "-") {
    const double tdry = val(dry), twet = val(wet);
    const bool breach = tdry >= -3.2 ? twet - 0.2 > tdry : twet > tdry;
    if (breach) {
      ws.error(words::kCheckTemperature);
      ws.set(k.Text28, "");
      empty_values_of_refused_reading(ws);
      ws.focus(k.Text28);
      return;
    }
  }
  choose_barometer_box(ws, true);
}


void compute_pressure(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (ws.humidity_mode == 1) {
    PressureInputs in = inputs(ws, ws.typed_RH);
    tell(ws, ModuleINVERS(in, ws.pressure));
    const double wet = round_to(ws.pressure.TWETRAW, 1);
    ws.set(k.Text28, num(wet));
    in.TWET = wet;
    tell(ws, DAMA_FASHAR(in, ws.pressure));
  } else {
    tell(ws, DAMA_FASHAR(inputs(ws, val(k.Text28.text)), ws.pressure));
  }
  publish_all(ws);
}

void empty_derived(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  for (Control* c :
       Controls{&k.Text15, &k.Text18, &k.Text19, &k.Text20, &k.Text21, &k.Text24, &k.Text29, &k.Text30, &k.Text31})
    ws.set(*c, "");
}

void choose_barometer_box(Desk& ws, bool move_focus) {
  FrmKashf& k = ws.FrmKashf;
  if (barograph_station(ws)) {
    k.FraNegar.visible = true;
    k.Text41.visible = true;
    k.Text14.visible = false;
    if (move_focus) ws.focus(k.Text41);
  } else {
    k.FraNegar.visible = false;
    k.Text14.visible = true;
    if (move_focus) ws.focus(k.Text13);
  }
}

bool thermometer_guard(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  return len(k.Text14.text) >= 3 && all_filled({&k.Text27, &k.Text28, &k.Text13, &k.Text14}) &&
         !any_dash({&k.txtt12, &k.Text27, &k.Text28, &k.Text13, &k.Text14});
}

bool t12_guard(Desk& ws) { return thermometer_guard(ws) && !ws.FrmKashf.txtt12.text.empty(); }

bool reading_guard(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  return len(k.Text14.text) >= 3 && all_filled({&k.Text27, &k.Text13, &k.Text14}) &&
         (!k.Text28.text.empty() || ws.humidity_mode == 1) &&
         !any_dash({&k.txtt12, &k.Text27, &k.Text28, &k.Text13, &k.Text14});
}

bool barograph_guard(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  return len(k.Text41.text) >= 3 && all_filled({&k.Text27, &k.Text28, &k.Text41}) &&
         !any_dash({&k.txtt12, &k.Text27, &k.Text28, &k.Text13, &k.Text41});
}

// Position by position: a point may stand fourth or fifth (a reading of three
// or four figures and its tenths); the figures before it are tested with the
// limits once three of them stand, but not between 99 and 106, where the
// observer is on the way to a reading of 1000 hPa and more.
Reading check_reading(Desk& ws, Control& box, bool empty_on_refusal) {
  const std::string s = box.text;
  auto refuse = [&] {
    ws.error(words::kCheckPressure);
    if (empty_on_refusal) ws.set(box, "");
    ws.focus(box);
    return Reading::Refused;
  };
  if (s.empty()) return Reading::Nothing;
  auto good = [](const std::string& ch) { return is_digit(ch) || ch == "." || ch == ansi_char(250); };
  const std::string c1 = char_at(s, 1);
  if (good(c1) && (c1 == "." || char_at(s, 2) == "." || char_at(s, 3) == ".")) return refuse();
  if (char_at(s, 4) == ".") return char_at(s, 5) == "." ? refuse() : Reading::Good;
  if (char_at(s, 5) == ".") return char_at(s, 6) == "." ? refuse() : Reading::Good;
  if (!good(c1)) return refuse();
  const std::size_t n = len(s);
  const double v = val(s);
  switch (n) {
    case 1:
      return Reading::Nothing;
    case 2:
      return digits(s, 1, 2) ? Reading::Nothing : refuse();
    case 3:
      if (v > 99 && v < 106) return Reading::Nothing;
      if (!digits(s, 2, 3)) return refuse();
      return pressure_limits(ws, box, v, true);
    default:
      if (!digits(s, n - 1, n)) return refuse();
      return pressure_limits(ws, box, v, false);
  }
}

bool attached_thermometer_ok(Desk& ws, double hard_max) {
  Control& tp = ws.FrmKashf.Text13;
  ws.set(tp, round_text(val(tp.text), 1));
  const double v = val(tp.text);
  if (v > hard_max || v < -5) {
    ws.error(words::kAttachedOutOfRange);
    ws.set(tp, "");
    ws.focus(tp);
    return false;
  }
  if ((v > 40 || v < 5) && !ws.ask(words::kConfirmBoxBefore)) {
    ws.set(tp, "");
    ws.focus(tp);
    return false;
  }
  return true;
}

void bind_pressure_entry(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Text14.on(Event::Change, Text14_change);
  k.Text14.on(Event::Enter, Text14_enter);
  k.Text14.on(Event::Leave, Text14_leave);
  k.Text14.on(Event::KeyEnter, [](Desk& w) { reading_key_enter(w, w.FrmKashf.Text14); });
  k.Text41.on(Event::Change, Text41_change);
  k.Text41.on(Event::Leave, Text41_leave);
  k.Text41.on(Event::KeyEnter, [](Desk& w) { reading_key_enter(w, w.FrmKashf.Text41); });
  k.Text31.on(Event::Change, Text31_change);
  k.Text31.on(Event::KeyEnter, Text31_key_enter);
  k.Text31.on(Event::Leave, Text31_leave);
  k.Text30.on(Event::Change, Text30_change);
}

}  // namespace obsdesk
