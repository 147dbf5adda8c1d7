// The run of the METAR coder, shared by the SPECI coder: the SPECI differs only in
// what is cleared first, its time step, the merging it leaves out, and its text.
#include <array>
#include <exception>
#include <initializer_list>
#include <tuple>
#include <vector>

#include "coders/metar.h"
#include "coders/metar_groups.h"
#include "coders/syntax_gate.h"
#include "screens/record.h"
#include "screens/boards.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

constexpr std::size_t kLineLimit = 48;  // columns of a bulletin line of the body

const char* const kNoCloudState = "لطفا وضعيت ابر ناكي را مشخص نمـائيـــد";
const char* const kCavokAgainstWeather = "گزارش شده با هواي حاضر مغايرت دارد CAVOK";
const char* const kSkcAgainstWeather = "گزارش شده با هواي حاضر مغايرت دارد   SKC";
const char* const kTwoLayersOver8 = "مجموع ابر هاي دو لايه بيش ار 8/8 ميباشد";

// The sky letters that may stand with CAVOK in the METAR present weather.
const char* const kCavokSky[] = {" cy", " by", " oy", " bcy", " o", " c", " bc", " b"};

bool is_trace(std::string_view amount) { return upper(trim(amount)) == "TR"; }

// The five cloud boxes of the METAR frame.
std::array<TextBox*, 5> cloud_boxes(FrmCode& p) { return {&p.Text56, &p.Text57, &p.Text58, &p.Text59, &p.Text60}; }

// The METAR frame's groups in the order of the report.
std::vector<std::string> frame1_groups(FrmCode& p) {
  std::vector<std::string> g;
  for (TextBox* b : {&p.TXTAUTO, &p.txtdddff, &p.TXTDNDX, &p.TXTVVVv, &p.TXTVXVXVXDV, &p.Text5, &p.Text4, &p.Text47,
                     &p.TXTSKC, &p.Text55, &p.Text56, &p.Text57, &p.Text58, &p.Text59, &p.Text60, &p.Text61,
                     &p.Text3, &p.Text2, &p.Text1, &p.Txt_NLC})
    g.push_back(b->text);
  return g;
}

// A group with a value goes into its box; a group with none leaves the box as it is.
void put(Desk& ws, TextBox& box, const std::string& group) {
  if (!group.empty()) ws.set(box, group);
}

bool low_convective(const FrmKashf& k) {
  for (const ComboBox* c : {&k.Combo1, &k.Combo2, &k.Combo3})
    if (!convective_suffix(c->text).empty()) return true;
  return false;
}

// Checks before coding; false ends the run.
bool start_checks(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  bool trace = false;
  double sum = 0;
  for (const TextBox* a : {&k.Text6, &k.Text8, &k.Text10, &k.Text17, &k.Text23}) {
    trace = trace || is_trace(a->text);
    sum += val(a->text);
  }
  const std::string n = trim(k.Text5.text);
  if (!trace && trim(k.Text23.text) != "X" && sum == 0 && n != "9" && n != "0") {
    ws.error(kNoCloudState);
    ws.focus(k.Text6);
    return false;
  }
  return true;
}

// Empty boxes of the layers read as none: "0" in the fields themselves.
void zero_if_empty(Desk& ws, std::initializer_list<TextBox*> boxes) {
  for (TextBox* b : boxes)
    if (b->text.empty()) ws.set(*b, "0");
}

void clear_panel(Desk& ws, MetarForm form) {
  FrmCode& p = ws.FrmCode;
  std::vector<TextBox*> boxes = {&p.TXTSKC, &p.Text56, &p.Text57, &p.Text58, &p.Text59, &p.Text60};
  // A SPECI keeps the other groups of an earlier report until they are written again.
  if (form == MetarForm::Metar)
    for (TextBox* b : {&p.TXTUTC, &p.TXTCCCC, &p.TXTYYGG, &p.txtdddff, &p.TXTDNDX, &p.TXTVVVv, &p.TXTVXVXVXDV,
                       &p.Text55, &p.Text61})
      boxes.push_back(b);
  for (TextBox* b : boxes) ws.set(*b, "");
}

void metar_time_step(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  if (k.Combo5.text == kMetar30) {
    coder_number(k.txt1.text, "txt1");
    ws.set(p.TXTUTC, k.txt1.text);
    ws.set(p.TXTCCCC, ws.FrmOption.TXTCOD.text);
    ws.set(p.TXTYYGG, metar30_time_group(k.TXTDAYmi.text, k.txt1.text));
    return;
  }
  ws.set(p.TXTUTC, metar_utc(k.Text1.text));
  ws.set(p.TXTCCCC, ws.FrmOption.TXTCOD.text);
  ws.set(p.TXTYYGG, metar_time_group(k.TXTDAYmi.text, k.Text1.text));
}

// The cloud figure N: a trace counts as one.
double cloud_figure(const FrmKashf& k) { return is_trace(k.Text5.text) ? 1 : val(k.Text5.text); }

// Visibility, CAVOK, SKC and NSC; false when the sky groups disagree with the weather.
bool sky_step(Desk& ws, double figure) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  const bool by_minimum = !k.TxtVM.text.empty();
  const double v = coder_number(by_minimum ? k.TxtVM.text : k.Text4.text, by_minimum ? "TxtVM" : "VH");
  put(ws, p.TXTVVVv, visibility_group(v, k.CMbMAX.text));

  const bool cloudy = figure != 0 && figure != 9;
  const bool above_obstacle = val(ws.FrmOption.txthmin.text) < val(k.TEXTMIN.text);
  const bool convective = low_convective(k);
  if (cloudy && v > 9999 && !convective && above_obstacle) ws.set(p.TXTVVVv, "CAVOK");
  if (figure == 0 && v > 9999) ws.set(p.TXTVVVv, "CAVOK");
  if (p.TXTVVVv.text == "CAVOK" && !k.LabVC.visible) {
    const std::string& mww = ws.FrmDisplayKashf.TXTWW1.text;
    bool sky = false;
    for (const char* s : kCavokSky) sky = sky || mww == s;
    if (!sky) {
      ws.error(kCavokAgainstWeather);
      return false;
    }
  }
  if (figure == 0 && v < 10000) {
    ws.set(p.TXTSKC, "SKC");
    if (present_weather_code(ws) > 49) {
      ws.error(kSkcAgainstWeather);
      return false;
    }
  } else {
    ws.set(p.TXTSKC, "");
  }
  if (cloudy && above_obstacle && !convective && v < 10000) ws.set(p.TXTSKC, "NSC");
  return true;
}

void second_visibility_step(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  if (k.Text26.text.empty()) return;
  const double vmax = coder_number(k.Text26.text, "MAXVV");
  if (val(k.TxtVM.text) < 1500 && vmax > 5000)
    put(ws, ws.FrmCode.TXTVXVXVXDV, visibility_group(vmax, k.CMbMIN.text, false));
}

// The layer groups and what the eight cases are built from.
CloudLayers layers_of(const FrmKashf& k) {
  CloudLayers c;
  auto low = [](const TextBox& a) { return is_trace(a.text) ? 1 : val(a.text); };
  auto upper_amount = [](const TextBox& a) { return is_trace(a.text) ? 0 : val(a.text); };
  auto height = [](const TextBox& h) { return trim(h.text) == "X" ? std::string() : cloud_height(h.text); };
  c.a1 = low(k.Text6);
  c.a2 = low(k.Text8);
  c.a3 = low(k.Text10);
  c.aM = upper_amount(k.Text17);
  c.aH = upper_amount(k.Text23);
  c.middle_trace = is_trace(k.Text17.text);
  const std::string s1 = convective_suffix(k.Combo1.text), s2 = convective_suffix(k.Combo2.text),
                    s3 = convective_suffix(k.Combo3.text);
  c.conv1 = !s1.empty();
  c.conv2 = !s2.empty();
  c.conv3 = !s3.empty();
  c.L1 = cover(c.a1) + cloud_height(k.Text7.text) + s1;
  c.L2 = cover(c.a2) + cloud_height(k.Text9.text) + s2;
  c.L3 = cover(c.a3) + cloud_height(k.Text11.text) + s3;
  c.M = cover(c.aM) + height(k.Text16);
  c.H = cover(c.aH) + height(k.Text22);
  return c;
}

// Cloud groups, emptied under NSC and CAVOK, and for a METAR the merging of two
// convective layers at one height.
void cloud_step(Desk& ws, MetarForm form, double figure) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  const auto boxes = cloud_boxes(p);
  const bool layered = figure != 9 && figure != 0;
  CloudLayers c;
  if (layered) {
    c = layers_of(k);
    const auto groups = cloud_groups(c);
    for (std::size_t i = 0; i < boxes.size(); ++i) ws.set(*boxes[i], groups[i]);
  }
  if (p.TXTSKC.text == "NSC" || p.TXTVVVv.text == "CAVOK")
    for (TextBox* b : boxes) ws.set(*b, "");

  ws.set(p.Txt_NLC, k.Txt_NLC.text);
  if (form == MetarForm::Speci || !layered) return;
  Merge m;
  m.first = c.conv1 && c.conv2 && val(k.Text7.text) == val(k.Text9.text);
  m.second = c.conv2 && c.conv3 && val(k.Text11.text) == val(k.Text9.text);
  if (!m.first && !m.second) return;
  m.a1 = c.a1;
  m.a2 = c.a2;
  m.a3 = c.a3;
  m.h1 = cloud_height(k.Text7.text);
  m.h2 = cloud_height(k.Text9.text);
  std::array<std::string, 5> groups;
  for (std::size_t i = 0; i < boxes.size(); ++i) groups[i] = boxes[i]->text;
  for (int i = merge_convective(groups, m); i > 0; --i) ws.message(kTwoLayersOver8);
  for (std::size_t i = 0; i < boxes.size(); ++i) ws.set(*boxes[i], groups[i]);
}

// The entry box a METAR or SPECI group is made from, for the focus when the group
// fails the final check.
Control* metar_source(Desk& ws, const std::string& group) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  const std::pair<Control*, Control*> sources[] = {
      {&p.Text10, &k.txt1},   {&p.txtdddff, &k.Text2}, {&p.TXTDNDX, &k.Text40}, {&p.TXTVVVv, &k.Text4},
      {&p.TXTVXVXVXDV, &k.Text26}, {&p.Text55, &k.Text12}, {&p.Text61, &k.Text27}, {&p.Text3, &k.Text14}};
  for (const auto& [box, source] : sources)
    if (trim(box->text) == group) return source;
  return nullptr;
}

// The run up to the report text; false when it ended early.
bool run(Desk& ws, MetarForm form) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  if (form == MetarForm::Speci) {
    ws.set(k.TXTSPE, "");
    ws.SPECI_coded = 1;
  } else {
    ws.METAR_coded = 1;
  }
  if (!start_checks(ws)) return false;
  const double figure = cloud_figure(k);
  zero_if_empty(ws, {&k.Text7, &k.Text9, &k.Text11, &k.Text16, &k.Text22});
  clear_panel(ws, form);

  if (form == MetarForm::Speci)
    speci_time_step(ws);
  else
    metar_time_step(ws);
  ws.set(p.txtdddff, wind_group(k.Text2.text, k.Text3.text, k.TXTGUSTY.text));
  put(ws, p.TXTDNDX, variable_sector(k.Text40.text, k.Text39.text));

  zero_if_empty(ws, {&k.Text6, &k.Text8, &k.Text10, &k.Text17, &k.Text23, &k.Text49});
  ws.set(k.TEXTMIN, figure == 9 ? k.Text12.text
                                : lowest_cloud(k.Text7.text, k.Text9.text, k.Text11.text, k.Text16.text,
                                               k.Text22.text, k.TEXTMIN.text));
  if (!sky_step(ws, figure)) return false;
  second_visibility_step(ws);
  put(ws, p.Text55, metar_vertical_visibility(k.Text12.text));
  put(ws, p.Text61, temperature_group(k.Text27.text, k.Text29.text));
  if (!trim(k.Text19.text).empty()) {
    ws.set(p.Text3, qnh_group(k.Text19.text));
    put(ws, p.Text30, altimeter_group(k.Text20.text));
  }
  cloud_step(ws, form, figure);

  if (form == MetarForm::Speci) {
    ws.set(k.TXTSPE, speci_text(ws));
    std::tie(ws.SpeciLine1, ws.SpeciLine2) = split_report(k.TXTSPE.text, kLineLimit);
  } else {
    ws.set(k.TXTMET, "");
    ws.set(k.TXTMET, join_groups(frame1_groups(p)) + "=");
    std::tie(ws.MetarLine1, ws.MetarLine2) = split_report(k.TXTMET.text, kLineLimit);
  }
  const bool speci = form == MetarForm::Speci;
  if (const auto fault = metar_fault(speci ? k.TXTSPE.text : k.TXTMET.text, speci)) {
    ws.error(gate_message(*fault));
    if (Control* source = metar_source(ws, fault->group)) ws.focus(*source);
    return false;
  }
  return true;
}

// A run that ended early leaves no report of its form behind, not even an
// earlier one.
void forget(Desk& ws, MetarForm form) {
  FrmKashf& k = ws.FrmKashf;
  k.ZAKHIREH.enabled = false;  // confirmation waits again for a report that codes
  if (form == MetarForm::Speci) {
    ws.SPECI_coded = 0;
    ws.SpeciLine1.clear();
    ws.SpeciLine2.clear();
    ws.set(k.TXTSPE, "");
  } else {
    ws.METAR_coded = 0;
    ws.MetarLine1.clear();
    ws.MetarLine2.clear();
    ws.set(k.TXTMET, "");
  }
}

}  // namespace

void run_metar_coder(Desk& ws, MetarForm form) {
  bool coded = false;
  try {
    coded = run(ws, form);
  } catch (const UsageError&) {
    throw;
  } catch (const std::exception& e) {
    // A text that no group can be built from: its words on the panel, the run ends.
    ws.error(e.what());
  }
  if (!coded) {
    forget(ws, form);
    return;
  }
  open_observer_list(ws);
}

std::string speci_text(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  return trim(p.Text10.text) + join_groups(frame1_groups(p)) + "=";
}

void open_observer_list(Desk& ws) {
  if (report_kind_coded(ws)) ws.FrmKashf.Combo7.enabled = true;
}

}  // namespace obsdesk
