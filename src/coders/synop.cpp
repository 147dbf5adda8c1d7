#include "coders/synop.h"

#include "checks/temperature.h"
#include "coders/code_panel.h"
#include "coders/metar.h"
#include "coders/coder_common.h"
#include "coders/synop_groups.h"
#include "coders/synop_sections.h"
#include "coders/syntax_gate.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

// A total cover of 9 (sky hidden) or 0 (clear) has no layers to code.
bool sky_has_layers(std::string_view n) { return n != "9" && n != "0"; }

void set_group(Desk& ws, Control& box, const std::optional<std::string>& group) {
  if (group) ws.set(box, *group);
}

// The height of the lowest reported cloud, kept in TEXTMIN for the run and for
// the METAR coder.
void lowest_cloud(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  auto lower = [](const std::string& candidate, const std::string& current) {
    return candidate != "0" && is_numeric(candidate) && is_numeric(current) && val(candidate) < val(current);
  };
  if (k.Text7.text != "0") {
    std::string m = k.Text7.text;
    for (Control* h : Controls{&k.Text9, &k.Text11})
      if (lower(h->text, m)) m = h->text;
    for (Control* h : Controls{&k.Text16, &k.Text22})
      if (h->text != "X" && lower(h->text, m)) m = h->text;
    ws.set(k.TEXTMIN, m);
  } else if (k.Text16.text != "0") {
    ws.set(k.TEXTMIN, k.Text16.text);
  } else if (k.Text22.text != "/" && k.Text22.text != "0") {
    ws.set(k.TEXTMIN, k.Text22.text);
  }
}

// iRiXhVV
void irix_group(Desk& ws, const std::string& n_figure) {
  FrmKashf& k = ws.FrmKashf;
  const std::string vv = visibility_code(coder_number(k.Text4.text));
  const std::string& irix = k.Text48.text;
  if (n_figure == "9") {
    ws.set(ws.FrmCode.Text76, irix + "/" + vv);
    return;
  }
  if (n_figure == "0") {
    ws.set(ws.FrmCode.Text76, irix + "9" + vv);
    return;
  }
  for (Control* c : Controls{&k.Text7, &k.Text9, &k.Text11, &k.Text16, &k.Text22, &k.Text6, &k.Text8, &k.Text10,
                             &k.Text17, &k.Text23, &k.Text49})
    if (c->text.empty()) ws.set(*c, "0");
  lowest_cloud(ws);
  std::optional<std::string> h = "/";
  if (k.Text5.text != "//" && k.Text5.text != "/") h = cloud_base_figure(coder_number(k.TEXTMIN.text));
  if (h) ws.set(ws.FrmCode.Text76, irix + *h + vv);
}

// The section 3 cloud groups 8NsChshs, with 8NhCLCMCH made between the cleanings.
void cloud_groups(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  Section3Clouds in;
  in.rows = {CloudRow{k.Text6.text, k.Combo1.text, k.Text7.text}, CloudRow{k.Text8.text, k.Combo2.text, k.Text9.text},
             CloudRow{k.Text10.text, k.Combo3.text, k.Text11.text},
             CloudRow{k.Text17.text, k.Combo6.text, k.Text16.text},
             CloudRow{k.Text23.text, k.Combo9.text, k.Text22.text}};
  in.vv = k.Text12.text;
  Control* box[4] = {&p.Text98, &p.Text99, &p.Text100, &p.Text101};
  set_group(ws, p.Text98, vertical_visibility_group(in.vv));
  CloudBoxes boxes = choose_cloud_boxes(in, {p.Text98.text, p.Text99.text, p.Text100.text, p.Text101.text});
  drop_obscured_boxes(boxes, in.vv);
  if (sky_has_layers(k.Text5.text))
    ws.set(p.Text86, cloud_group(k.Text49.text, k.Combo4.text, k.Combo6.text, k.Combo9.text, k.Text17.text));
  compact_cloud_boxes(boxes, k.Text6.text);
  for (int i = 0; i < 4; ++i) ws.set(*box[i], boxes[i]);
}

// Sections 3 and 5 but the cloud groups. False when the run ends here.
bool section3_and_5(Desk& ws, const std::string& hour) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  if (!k.Text28.text.empty()) set_group(ws, p.Text102, signed_tenths_group("9", k.Text28.text));
  ws.set(p.Text89, std::string(kBlankGroup));
  ws.set(p.Text90, std::string(kBlankGroup));
  if (hour == "15") set_group(ws, p.Text89, signed_tenths_group("1", k.Text60.text));
  if (hour == "03") set_group(ws, p.Text90, signed_tenths_group("2", k.Text59.text));
  Control* soil[6] = {&k.Text32, &k.Text33, &k.Text34, &k.Text35, &k.Text36, &k.Text37};
  Control* soil_box[6] = {&p.Text41, &p.Text42, &p.Text43, &p.Text44, &p.Text45, &p.Text46};
  for (int i = 0; i < 6; ++i)
    if (!soil[i]->text.empty() && soil[i]->text != "-") set_group(ws, *soil_box[i], signed_tenths_group("1", soil[i]->text));
  set_group(ws, p.Text93, upper_air_group(k.Text24.text));

  ws.set(p.Text97, std::string(kBlankGroup));
  if (!k.Text53.text.empty() && hour == "06") set_group(ws, p.Text97, rain24_group(k.Text53.text));
  if (const auto g = ground_minimum(k.Text68.text, coder_number)) {
    ws.GroundSign = g->sign;
    ws.GroundTemp = g->temp;
  }
  if (!k.Text69.text.empty()) ws.set(p.Text92, snow_group(ws.GroundCode, k.Text69.text));
  if (evaporation_is_negative(k.Text66.text)) {
    ws.message(std::string(kNegativeEvaporation));
    ws.focus(k.Text66);
    return false;
  }
  set_group(ws, p.Text94, evaporation_group(k.Text66.text, ws.FrmOption.Combo2.text));
  set_group(ws, p.Text95, sunshine_group(k.Txttimesun.text));
  if (!k.Text71.text.empty()) ws.set(p.Text96, radiation_group(k.Text71.text, ws.FrmOption.txttabesh.text));
  return true;
}

void clear_synop_frame(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  for (Control* c : Controls{&p.Text41, &p.Text42, &p.Text43, &p.Text44, &p.Text45, &p.Text46, &p.Text76, &p.Text77,
                             &p.Text78, &p.Text79, &p.Text80, &p.Text81, &p.Text82, &p.Text83, &p.Text84, &p.Text86,
                             &p.Text89, &p.Text90, &p.Text92, &p.Text93, &p.Text94, &p.Text95, &p.Text96, &p.Text97,
                             &p.Text98, &p.Text99, &p.Text100, &p.Text101, &p.Text102, &p.Text104, &p.Text105})
    ws.set(*c, std::string(kBlankGroup));
  ws.set(p.Text103, "   ");
}

std::string archive_line(Desk& ws, const std::string& upper_air) {
  FrmCode& p = ws.FrmCode;
  std::string line = synop_line_prefix(ws);
  for (Control* c : Controls{&p.Text76, &p.Text77, &p.Text78, &p.Text79, &p.Text80, &p.Text81, &p.Text82, &p.Text83,
                             &p.Text84, &p.Text85, &p.Text86, &p.Text87})
    line += c->text;
  line += "333";
  for (Control* c : Controls{&p.Text89, &p.Text90, &p.Text91, &p.Text92}) line += c->text;
  line += upper_air;
  for (Control* c : Controls{&p.Text94, &p.Text95, &p.Text96, &p.Text97, &p.Text98, &p.Text99, &p.Text100,
                             &p.Text101, &p.Text102, &p.Text103, &p.Text104, &p.Text105})
    line += c->text;
  // "999" heads the soil groups, filled at 03, 09 and 15 only.
  const std::string& hour = p.Text75.text;
  const double h = val(hour);
  line += !trim(hour).empty() && (h == 3 || h == 9 || h == 15) ? "999" : "   ";
  for (Control* c : Controls{&p.Text41, &p.Text42, &p.Text43, &p.Text44, &p.Text45, &p.Text46}) line += c->text;
  return line + "      " + p.Text7.text;
}

std::string golbad_line(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  return ws.FrmOption.NUMCOD.text + mid(p.TXTYEARmi.text, 3, 2) + p.TXTMONTHMI.text + p.TXTDAYmi.text +
         p.Text75.text + "***" + p.Text34.text + "*******";
}

}  // namespace

std::string join_synop(const std::vector<std::string>& boxes, std::string_view qnt) {
  std::string text;
  for (const std::string& b : boxes) {
    if (b.empty() || b == kBlankGroup || b == "   ") continue;
    text += (text.empty() ? "" : " ") + b;
  }
  if (!qnt.empty()) text += " " + std::string(qnt);
  return text + "=";
}

void synop_date_step(Desk& ws, std::string_view station_kind, int clock_hour,
                     std::initializer_list<std::string_view> hours) {
  FrmKashf& k = ws.FrmKashf;
  // The hour of the clock when the date boxes were filled: the date they hold is
  // the one the report's date is moved on from.
  const int hour = ws.date_boxes_hour >= 0 ? ws.date_boxes_hour : ws.now().hour;
  if (ws.FrmOption.Combo1.text != station_kind || hour != clock_hour) return;
  bool hour_matches = false;
  for (std::string_view h : hours) hour_matches = hour_matches || k.Text1.text == h;
  if (!hour_matches) return;
  const ReportDate d =
      next_report_day({k.TXTYEARmi.text, k.TXTMONTHMI.text, k.TXTDAYmi.text, k.TXTDAYsh.text});
  ws.set(k.TXTDAYmi, d.day);
  ws.set(k.TXTDAYsh, d.sh_day);
  ws.set(k.TXTMONTHMI, d.month);
  ws.set(k.TXTYEARmi, d.year);
}

void synop_hour_and_dates(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  ws.set(p.Text75, k.Text1.text);
  ws.set(p.TXTYEARmi, k.TXTYEARmi.text);
  ws.set(p.TXTMONTHMI, k.TXTMONTHMI.text);
  ws.set(p.TXTDAYmi, k.TXTDAYmi.text);
  ws.set(p.TXTYEARsh, k.TXTYEARsh.text);
  ws.set(p.TXTMONTHSH, k.TXTMONTHSH.text);
  ws.set(p.TXTDAYsh, k.TXTDAYsh.text);
}

void synop_copies(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  ws.set(p.Text104, k.Txtmaxwind.text);
  ws.set(p.Text105, k.Txttond.text);
  synop_hour_and_dates(ws);
  ws.set(p.TXT_QNT, k.TXT_QNT.text);
}

std::string synop_line_prefix(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  return "2" + ws.FrmOption.NUMCOD.text + mid(p.TXTYEARmi.text, 3, 2) + p.TXTMONTHMI.text + p.TXTDAYmi.text +
         p.Text75.text;
}

void set_archive_line(Desk& ws, std::string line) {
  ws.set(ws.FrmCode.TXTSCDATA, "");
  ws.set(ws.FrmCode.TXTSCDATA, std::move(line));
  if (ws.FrmCode.TXTTEDAD.text != "200") ws.error(std::string(kLineNot200));
}

namespace {

// The entry box a group of the SYNOP body is made from, for the focus when the
// group fails the final check.
Control* synop_source(Desk& ws, const std::string& group) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  const std::pair<Control*, Control*> sources[] = {
      {&p.Text76, &k.Text48}, {&p.Text77, &k.Text2},  {&p.Text78, &k.Text3},     {&p.Text79, &k.Text27},
      {&p.Text80, &k.Text29}, {&p.Text81, &k.Text14}, {&p.Text82, &k.Text14},    {&p.Text83, &k.Text38},
      {&p.Text84, &k.txtpast6}, {&p.Text86, &k.Text49}, {&p.TXT_QNT, &k.TXT_QNT}};
  for (const auto& [box, source] : sources)
    if (box->text == group) return source;
  return nullptr;
}

// The run of the coder up to the report text; false when it ended early.
bool code_synop(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  load_code_panel(ws);

  // iX is read as a number: an empty or malformed iR iX ends the run.
  const double irix = coder_number(k.Text48.text);
  if (irix - 10 * vb_int(irix / 10) == 1 && p.Text85.text == kBlankGroup) {
    ws.error(std::string(kWeatherMissing));
    return false;
  }
  ws.SYNOP_coded = 1;

  const std::string& n = k.Text5.text;
  bool trace = false;
  double sum = 0;
  for (Control* a : Controls{&k.Text6, &k.Text8, &k.Text10, &k.Text17, &k.Text23}) {
    trace = trace || a->text == "TR";
    sum += val(a->text);
  }
  if (!trace && k.Text23.text != "X" && sum == 0 && sky_has_layers(n)) {
    ws.error(std::string(kNoCloudAmounts));
    ws.focus(k.Text6);
    return false;
  }
  clear_synop_frame(ws);

  // Section 1.
  const std::string hour = k.Text1.text;
  const WindGroups wind = wind_groups(n, k.Text2.text, k.Text3.text);
  ws.set(p.Text77, wind.nddff);
  set_group(ws, p.Text78, wind.oofff);
  irix_group(ws, cloud_figure_n(n));
  if (!k.Text27.text.empty()) set_group(ws, p.Text79, signed_tenths_group("1", k.Text27.text));
  set_group(ws, p.Text80, signed_tenths_group("2", k.Text29.text));
  ws.set(p.Text81, pressure_group("3", k.Text18.text));
  ws.set(p.Text82, pressure_group("4", k.Text21.text));
  if (!k.Text25.text.empty()) ws.set(p.Text83, tendency_group(k.Text38.text, k.Text25.text));
  if (k.txtpast6.text.empty()) ws.set(k.txtpast6, "0");
  set_group(ws, p.Text84, rain_group(k.txtpast6.text, hour, ws.FrmOption.Combo1.text));

  // Sections 3 and 5.
  cloud_groups(ws);
  ws.set(p.Text103, humidity_box(k.Text31.text));
  if (!section3_and_5(ws, hour)) return false;
  synop_date_step(ws, kStation24, 23, {"00"});
  synop_copies(ws);

  // The report, its two lines, the archive lines.
  const std::string text = join_synop(
      {p.Text76.text, p.Text77.text, p.Text78.text, p.Text79.text, p.Text80.text, p.Text81.text, p.Text82.text,
       p.Text83.text, p.Text84.text, p.Text85.text, p.Text86.text, p.Text88.text, p.Text89.text, p.Text90.text,
       p.Text91.text, p.Text92.text, p.Text94.text, p.Text95.text, p.Text96.text, p.Text97.text, p.Text98.text,
       p.Text99.text, p.Text100.text, p.Text101.text},
      p.TXT_QNT.text);
  ws.set(k.txtSYN, "");
  ws.set(k.txtSYN, text);
  const auto lines = split_report(text, 61);
  ws.SynopLine1 = lines.first;
  ws.SynopLine2 = lines.second;

  const std::string slot = upper_air_slot(p.Text93.text, ws.FrmOption.Txth.text, hour);
  set_archive_line(ws, archive_line(ws, slot));
  ws.set(p.TXTgolbad, golbad_line(ws));

  if (const auto fault = synop_fault(text)) {
    ws.error(gate_message(*fault));
    if (Control* source = synop_source(ws, fault->group)) ws.focus(*source);
    return false;
  }
  return true;
}

}  // namespace

void forget_synop(Desk& ws) {
  // Confirmation waits again for a report that codes.
  ws.FrmKashf.ZAKHIREH.enabled = false;
  ws.SYNOP_coded = 0;
  ws.SynopLine1.clear();
  ws.SynopLine2.clear();
  ws.set(ws.FrmKashf.txtSYN, "");
}

void run_synop(Desk& ws) {
  bool coded = false;
  try {
    coded = code_synop(ws);
  } catch (const UsageError&) {
    throw;
  } catch (const std::exception& e) {
    ws.error(e.what());
  }
  // A run that ended early leaves no report behind, not even an earlier one.
  if (!coded) {
    forget_synop(ws);
    return;
  }
  open_observer_list(ws);
}

void wire_synop(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  wire_synop_pointer(ws);
  k.Cmdsynop.on(Event::Click, run_synop);
  k.cmdsynop1218.on(Event::Click, run_synop1218);
}

}  // namespace obsdesk
