// Frmgozashteh1 and FrmGozashteh2: the past weather W1 and W2, one family. W2 may
// not be of greater weight than W1; each choice rebuilds the group 7WWw1W2.
#include <string>

#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/board_tables.h"
#include "pickers/pickers.h"

namespace obsdesk {

namespace {

constexpr std::string_view kOutranksW1 = " از نظر اهميت مورد انتخاب شده از انتخاب اول بالاتر ميباشد  ";
constexpr std::string_view kNoW1Yet = "     هواي گذشته قبلي انتخاب نشده است  ";

}  // namespace

// 7WWw1W2
void rebuild_weather_group(Desk& ws) {
  const FrmDisplayKashf& b = ws.FrmDisplayKashf;
  const std::string figures = trim(b.TXTWW4.text) + trim(b.TXTWW5.text) + trim(b.TXTWW6.text);
  ws.set(ws.FrmCode.Text85, figures.empty() ? std::string(5, ' ') : "7" + figures);
}

void w_click(Desk& ws, int board, int n) {
  const PastWeather& w = past_weather_table()[n];
  FrmKashf& k = ws.FrmKashf;
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  if (board == 2 && n >= 1 && val(ws.Frmgozashteh1.PastW1) < n) {
    ws.error(std::string(kOutranksW1));
    return;
  }
  if (board == 1) {
    ws.set(k.Image2, std::string(w.picture));
    ws.set(b.TXTWW5, std::string(w.figure));
    ws.Frmgozashteh1.PastW1 = std::string(w.figure);
  } else {
    ws.set(k.Image9, std::string(w.picture));
    ws.set(b.TXTWW6, std::string(w.figure));
    ws.FrmGozashteh2.PastW2 = std::string(w.figure);
  }
  rebuild_weather_group(ws);
  ws.hide(ws.FrmTooltip);
  if (board == 1)
    ws.hide(ws.Frmgozashteh1);
  else
    ws.hide(ws.FrmGozashteh2);
}

// Image9 opens the W2 board only once W1 is chosen.
void open_w2_board(Desk& ws) {
  if (ws.FrmKashf.Image2.text.empty()) {
    ws.error(std::string(kNoW1Yet));
    return;
  }
  ws.show(ws.FrmGozashteh2);
}

void wire_past_weather(Desk& ws) {
  PastWeatherBoard* boards[] = {&ws.Frmgozashteh1, &ws.FrmGozashteh2};
  for (int i = 0; i < 2; ++i) {
    const int board = i + 1;
    PastWeatherBoard& s = *boards[i];
    for (int n = 0; n < 10; ++n) {
      s.button(n).on(Event::Click, [board, n](Desk& w) { w_click(w, board, n); });
      bind_hint(s.button(n), "W" + std::to_string(board) + " CODE " + std::to_string(n));
    }
    s.Command1.on(Event::Click, [&s](Desk& w) { w.hide(s); });
  }
}

}  // namespace obsdesk
