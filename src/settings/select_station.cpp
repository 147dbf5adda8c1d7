#include "settings/select_station.h"

#include "settings/catalogue.h"
#include "screens/desk.h"

namespace obsdesk {


namespace {

// The start screen's province list: the choice holds for this run.
void ComboOstan_click(Desk& ws) { ws.set(ws.FrmMain.LabOstan, ws.FrmMain.ComboOstan.text); }

void FrmSelectStation_load(Desk& ws) {
  ws.FrmSelectStation.Combo1.items = stations_of(ws.FrmMain.LabOstan.text);
}

void Combo1_click(Desk& ws) {
  FrmSelectStation& d = ws.FrmSelectStation;
  ws.set(d.Txtfind, d.Combo1.text);
  ws.hide(d);
}

}  // namespace

void select_station(Desk& ws, const std::string& start,
                    std::function<void(Desk&, const std::string&)> on_text) {
  FrmSelectStation& d = ws.FrmSelectStation;
  d.Combo1.text = kSelectStationHead;
  ws.set(d.Txtfind, start);
  ws.show_modal(d, [on_text = std::move(on_text)](Desk& w) {
    const std::string text = w.FrmSelectStation.Txtfind.text;
    w.unload(w.FrmSelectStation);
    if (on_text) on_text(w, text);
  });
}

void wire_catalogue(Desk& ws) {
  ws.FrmMain.ComboOstan.items = provinces();
  ws.FrmMain.ComboOstan.on(Event::Click, ComboOstan_click);
  FrmSelectStation& d = ws.FrmSelectStation;
  d.on(ScreenEvent::Load, FrmSelectStation_load);
  // Closed by its window's box, the picker has chosen nothing.
  d.on(ScreenEvent::Unload, [](Desk& w) {
    if (w.FrmSelectStation.visible) w.FrmSelectStation.Txtfind.text.clear();
  });
  d.Combo1.on(Event::Click, Combo1_click);
}

}  // namespace obsdesk
