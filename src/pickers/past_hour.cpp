// FrmGozashteh: the weather of the past hour for the METAR group REw'w'. Nothing
// is held against the observation; a phenomenon still going on in the METAR
// present weather is not reported again as recent.
#include <algorithm>
#include <string>

#include "core/textnum.h"
#include "screens/desk.h"
#include "pickers/pickers.h"
#include "screens/weather_tables.h"

namespace obsdesk {

namespace {

constexpr int kPastHourBox = 7;  // MPW2 and Image7

}  // namespace

void FrmGozashteh_P_click(Desk& ws, int ww) {
  if (ws.WeatherBoxSelect != kPastHourBox) return;
  const PastHourWeather& row = past_hour_table()[ww];
  if (row.act == PastHourAct::Nothing) return;
  if (row.act == PastHourAct::Refuse) {
    ws.error(std::string(kNoMetarPastHour));
    return;
  }
  ws.set(ws.FrmDisplayKashf.TXTWW2, std::string(row.box));
  ws.set(ws.FrmKashf.Image7, std::string(present_weather_picture(ww)));
  if (!row.panel.empty()) {
    const std::string present = trim(ws.FrmDisplayKashf.TXTWW1.text);
    const auto& blocks = row.blocked_by;
    if (std::find(blocks.begin(), blocks.end(), present) == blocks.end())
      ws.set(ws.FrmCode.Text2, std::string(row.panel));
  }
  ws.hide(ws.FrmGozashteh);
  ws.hide(ws.FrmTooltip);
}

void wire_past_hour(Desk& ws) {
  FrmGozashteh& g = ws.FrmGozashteh;
  for (int ww = 0; ww < 100; ++ww) {
    Button& b = *g.buttons.P[ww];
    const PastHourWeather& row = past_hour_table()[ww];
    if (row.act == PastHourAct::Nothing) continue;  // 78 has no handler at all
    b.on(Event::Click, [ww](Desk& w) { FrmGozashteh_P_click(w, ww); });
    bind_hint(b, "METAR CODE " + std::string(row.box) + "   SYNOP CODE " +
                     std::string(present_weather_picture(ww).substr(2)));
  }
  g.Command1.on(Event::Click, [](Desk& w) { w.hide(w.FrmGozashteh); });
}

}  // namespace obsdesk
