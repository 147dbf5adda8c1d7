#include "pickers/pickers.h"

#include "screens/desk.h"

namespace obsdesk {

// The hint window shows the code under the pointer; it takes no input, so it is
// shown without taking the focus from the board.
void bind_hint(Control& picture, std::string text) {
  picture.on(Event::MouseMove, [text](Desk& ws) {
    ws.FrmTooltip.Lab1.text = text;
    ws.FrmTooltip.loaded = true;
    ws.FrmTooltip.visible = true;
  });
  picture.on(Event::MouseLeave, [](Desk& ws) { ws.FrmTooltip.visible = false; });
}

void wire_pickers(Desk& ws) {
  wire_present_weather(ws);
  wire_past_hour(ws);
  wire_past_weather(ws);
  wire_sky_letters(ws);
  wire_ground(ws);
  wire_irix(ws);
  wire_entry_images(ws);
}

}  // namespace obsdesk
