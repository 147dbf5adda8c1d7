// FrmFeali: one click on a code holds it against the observation typed so far
// (the tests before, then the cloud that must be seen), then writes the box the
// selector names, its picture and the panel.
#include <algorithm>
#include <string>

#include "core/textnum.h"
#include "screens/desk.h"
#include "pickers/pickers.h"
#include "screens/weather_tables.h"

namespace obsdesk {

namespace {

constexpr int kSynopBox = 1;    // SWW and Image1
constexpr int kMetarBox = 10;   // MWW and Image10
constexpr int kRecentBox = 8;   // MPW1 and Image8

// The total cloud is this figure ("TR" is no figure).
bool cloud_is(const Control& n, int figure) {
  const std::string t = trim(n.text);
  return is_numeric(t) && val(t) == figure;
}

bool any_of(const Control& a, std::initializer_list<std::string_view> texts) {
  for (std::string_view t : texts)
    if (a.text == t) return true;
  return false;
}

bool gate_holds(const FrmKashf& k, Gate gate) {
  const Control* low[] = {&k.Combo1, &k.Combo2, &k.Combo3};
  auto low_is = [&](std::initializer_list<std::string_view> texts) {
    for (const Control* c : low)
      if (any_of(*c, texts)) return true;
    return false;
  };
  const bool middle_rain = any_of(k.Combo6, {"AS     2", "NS     2"});
  switch (gate) {
    case Gate::None: return true;
    case Gate::CB: return low_is({"CB     3", "CB     9"});
    case Gate::NS: return low_is({"SC     4", "SC     5"}) || middle_rain;
    // The third low layer is not looked at for a stratus.
    case Gate::ST: return any_of(k.Combo1, {"ST,FS  6"}) || any_of(k.Combo2, {"ST,FS  6"});
    case Gate::PE: return low_is({"CB     9"}) || middle_rain;
  }
  return true;
}

bool passes(const Desk& ws, Check check) {
  const FrmKashf& k = ws.FrmKashf;
  const double rh = val(k.Text31.text);
  const double ff = val(k.Text3.text);
  const double vis = ws.FrmFeali.Visibility;
  switch (check) {
    case Check::CloudNotNil: return !cloud_is(k.Text5, 0);
    case Check::CloudObscured: return cloud_is(k.Text5, 9);
    case Check::CloudNotObscured: return !cloud_is(k.Text5, 9);
    case Check::HumidityAtMost80: return rh <= 80;
    case Check::HumidityAtLeast80: return rh >= 80;
    case Check::HumidityAtLeast95: return rh >= 95;
    case Check::WindAtLeast8: return ff >= 8;
    case Check::WindAtLeast16: return ff >= 16;
    case Check::VisBelow1000: return vis < 1000;
    case Check::VisAbove999: return vis > 999;
    case Check::VisBelow4001: return vis < 4001;
    case Check::VisBelow4000: return vis < 4000;
    case Check::Vis1000To10000: return vis >= 1000 && vis <= 10000;
  }
  return true;
}

std::string two_figures(int ww) { return std::string(1, char('0' + ww / 10)) + char('0' + ww % 10); }

// The board's work is done: it goes, and the entry screen has the focus again.
void close_board(Desk& ws) {
  ws.hide(ws.FrmTooltip);
  ws.unload(ws.FrmFeali);
}

}  // namespace

void FrmFeali_load(Desk& ws) {
  const FrmKashf& k = ws.FrmKashf;
  ws.FrmFeali.Visibility = trim(k.TxtVM.text).empty() ? val(k.Text4.text) : val(k.TxtVM.text);
}

void P_click(Desk& ws, int ww) {
  FrmFeali& f = ws.FrmFeali;
  FrmKashf& k = ws.FrmKashf;
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  FrmCode& p = ws.FrmCode;
  const PresentWeather& row = present_weather_table()[ww];
  const std::string picture(present_weather_picture(ww));

  // Haze, dust and mist first take back what stands in the METAR present box.
  if (ww == 5 || ww == 6 || ww == 10) {
    ws.set(b.TXTWW1, "");
    ws.set(p.Text4, "");
  }
  for (const BeforeTest& t : row.before) {
    if (!passes(ws, t.check)) {
      ws.error(std::string(t.message));
      return;
    }
  }
  if (!gate_holds(k, row.gate)) {
    // Under an obscured sky the cloud cannot be seen: the observer may confirm.
    if (row.ask && trim(k.Text5.text) == "9") {
      if (!ws.ask(std::string(kConfirmPhenomenon))) return;
    } else {
      ws.error(std::string(kCloudMismatch));
      return;
    }
  }

  const bool far = f.Visibility > 5000;
  switch (ws.WeatherBoxSelect) {
    case kSynopBox:
      ws.set(b.TXTWW4, std::string(row.synop));
      ws.set(k.Image1, picture);
      f.MetarText = std::string(row.metar);
      f.LastCode = ww;
      break;
    case kMetarBox:
      if (row.metar.empty()) {
        ws.error(std::string(kNoMetarPresent));
        return;
      }
      if (row.mark == Mark::M5m && far) break;
      f.MetarText = std::string(row.metar);
      ws.set(b.TXTWW1, f.MetarText);
      ws.set(k.Image10, picture);
      if (row.mark != Mark::M5 || !far) ws.set(p.Text4, trim(f.MetarText));
      f.LastCode = ww;
      break;
    case kRecentBox:
      if (row.recent.empty()) {
        if (ww == 27) break;  // 27 has no refusal of its own: the board just closes
        const bool past_words = ww == 0 || ww == 11 || ww == 13;
        ws.error(std::string(past_words ? kNoMetarPast : kNoMetarPresent));
        return;
      }
      if (row.mark == Mark::M5 && far) {
        ws.error(std::string(kRecentAbove5000));
        return;
      }
      if (row.mark == Mark::M5m && far) break;
      f.MetarText = std::string(row.recent);
      ws.set(row.recent_in_metar_box ? b.TXTWW1 : b.TXTWW3, f.MetarText);
      ws.set(k.Image8, picture);
      ws.set(p.Text47, trim(f.MetarText));
      f.LastCode = ww;
      break;
    default:
      break;
  }
  close_board(ws);
}

void CmbVC_click(Desk& ws) {
  FrmFeali& f = ws.FrmFeali;
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  const std::string code = f.CmbVC.text;
  if (code != "None" && std::find(f.CmbVC.items.begin(), f.CmbVC.items.end(), code) == f.CmbVC.items.end())
    return;  // typed text that is no vicinity code
  k.LabVC.text = code;
  k.LabVC.visible = true;
  if (vicinity_sets_mark(code)) f.VicinityMark = true;
  if (code == "None") {
    k.LabVC.visible = false;
    ws.set(p.Text4, "");
    ws.set(p.Text47, "");
    ws.hide(f);
    return;
  }
  // Beyond 8 km a phenomenon in the vicinity is not reported.
  if (val(k.Text4.text) > 7999) {
    ws.error(std::string(kVicinityAbove8000));
    ws.set(p.Text4, "");
    ws.set(p.Text47, "");
    return;
  }
  ws.set(ws.FrmDisplayKashf.TXTWW1, code);
  ws.set(p.Text4, code);
  ws.set(p.Text47, code);
}

void FrmFeali_Command1_click(Desk& ws) {
  if (ws.WeatherBoxSelect == kRecentBox) {
    FrmKashf& k = ws.FrmKashf;
    k.Image8.visible = false;
    k.Image4.visible = true;
    ws.set(ws.FrmDisplayKashf.TXTWW3, "");
    ws.set(ws.FrmCode.Text47, "");
  }
  close_board(ws);
}

// The code chosen on the present weather board: the last one taken while its
// picture still stands on the entry screen, else any code a picture shows.
void open_present_weather_picker(Desk& ws) {
  ws.WeatherBoxSelect = kMetarBox;
  ws.show(ws.FrmFeali);
}

void wire_present_weather(Desk& ws) {
  FrmFeali& f = ws.FrmFeali;
  f.on(ScreenEvent::Load, FrmFeali_load);
  for (int ww = 0; ww < 100; ++ww) {
    Button& b = *f.buttons.P[ww];
    b.on(Event::Click, [ww](Desk& w) { P_click(w, ww); });
    bind_hint(b, "METAR CODE " + std::string(present_weather_table()[ww].metar) + "   SYNOP CODE " + two_figures(ww));
  }
  f.CmbVC.on(Event::Click, CmbVC_click);
  f.Command1.on(Event::Click, FrmFeali_Command1_click);
}

}  // namespace obsdesk
