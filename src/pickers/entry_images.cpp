// The pictures of the entry screen that open the boards. A click on an empty
// picture opens its board for its box; a click on a filled one empties it, with
// the box and the panel group it stands for.
#include <string>

#include "screens/desk.h"
#include "pickers/pickers.h"

namespace obsdesk {

namespace {

constexpr std::string_view kBlankGroup = "     ";

// Opens the present weather board for a selector.
void open_feali(Desk& ws, int select) {
  ws.WeatherBoxSelect = select;
  ws.show(ws.FrmFeali);
}

}  // namespace

void Image1_click(Desk& ws) {
  if (ws.FrmKashf.Image1.text.empty()) return open_feali(ws, 1);
  ws.set(ws.FrmKashf.Image1, "");
  ws.set(ws.FrmDisplayKashf.TXTWW4, "");
  rebuild_weather_group(ws);
}

void Image10_click(Desk& ws) {
  if (ws.FrmKashf.Image10.text.empty()) return open_feali(ws, 10);
  ws.set(ws.FrmKashf.Image10, "");
  ws.set(ws.FrmDisplayKashf.TXTWW1, "");
  ws.set(ws.FrmCode.Text4, "");
}

void Image8_click(Desk& ws) {
  if (ws.FrmKashf.Image8.text.empty()) return open_feali(ws, 8);
  ws.set(ws.FrmKashf.Image8, "");
  ws.set(ws.FrmDisplayKashf.TXTWW3, "");
  ws.set(ws.FrmCode.Text47, "");
}

// Image4 brings back the second METAR weather place that Cancel put away.
void Image4_click(Desk& ws) {
  ws.FrmKashf.Image4.visible = false;
  ws.FrmKashf.Image8.visible = true;
  open_feali(ws, 8);
}

void Image7_click(Desk& ws) {
  if (ws.FrmKashf.Image7.text.empty()) {
    ws.WeatherBoxSelect = 7;
    ws.show(ws.FrmGozashteh);
    return;
  }
  ws.set(ws.FrmKashf.Image7, "");
  ws.set(ws.FrmDisplayKashf.TXTWW2, "");
  ws.set(ws.FrmCode.Text2, "");
}

void Image2_click(Desk& ws) {
  if (ws.FrmKashf.Image2.text.empty()) return ws.show(ws.Frmgozashteh1);
  ws.set(ws.FrmKashf.Image2, "");
  ws.set(ws.FrmDisplayKashf.TXTWW5, "");
  ws.Frmgozashteh1.PastW1.clear();
  rebuild_weather_group(ws);
}

void Image9_click(Desk& ws) {
  if (ws.FrmKashf.Image9.text.empty()) return open_w2_board(ws);
  ws.set(ws.FrmKashf.Image9, "");
  ws.set(ws.FrmDisplayKashf.TXTWW6, "");
  ws.FrmGozashteh2.PastW2.clear();
  rebuild_weather_group(ws);
}

void Image3_click(Desk& ws) {
  if (ws.FrmKashf.Image3.text.empty()) return open_ground_picker(ws);
  ws.set(ws.FrmKashf.Image3, "");
  ws.set(ws.FrmDisplayKashf.Text52, "");
  ws.GroundCode.clear();
  ws.set(ws.FrmCode.Text91, std::string(kBlankGroup));
  ws.set(ws.FrmCode.Text92, std::string(kBlankGroup));
}

// A double click on a weather picture offers the sky letters for its box instead
// of a phenomenon: the click before it has opened (or emptied) the picture's own
// board, which makes way.
void sky_for_picture(Desk& ws, int select, const char* tww) {
  ws.unload(ws.FrmFeali);
  for (Screen* board : {static_cast<Screen*>(&ws.FrmGozashteh), static_cast<Screen*>(&ws.Frmgozashteh1),
                        static_cast<Screen*>(&ws.FrmGozashteh2)})
    if (board->visible) ws.hide(*board);
  ws.WeatherBoxSelect = select;
  if (*tww != '\0') ws.set(ws.FrmKashf.TWW, tww);
  open_sky_board(ws, ws.FrmBCOBCOY);
}

void wire_entry_images(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Image1.on(Event::Click, Image1_click);
  k.Image10.on(Event::Click, Image10_click);
  k.Image8.on(Event::Click, Image8_click);
  k.Image4.on(Event::Click, Image4_click);
  k.Image7.on(Event::Click, Image7_click);
  k.Image2.on(Event::Click, Image2_click);
  k.Image9.on(Event::Click, Image9_click);
  k.Image3.on(Event::Click, Image3_click);
  struct SkyPicture {
    Image* image;
    int select;
    const char* tww;
  };
  for (const SkyPicture& p : {SkyPicture{&k.Image1, 1, "1"}, SkyPicture{&k.Image2, 2, "2"},
                              SkyPicture{&k.Image9, 3, "3"}, SkyPicture{&k.Image10, 10, ""},
                              SkyPicture{&k.Image8, 8, ""}, SkyPicture{&k.Image7, 7, ""}})
    p.image->on(Event::DblClick, [p](Desk& w) { sky_for_picture(w, p.select, p.tww); });
  k.Text48.on(Event::Click, [](Desk& w) { open_irix_picker(w, false); });
}

}  // namespace obsdesk
