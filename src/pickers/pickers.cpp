#include "pickers/pickers.h"

#include "core/workstation.h"

namespace obsdesk {

// The hint window shows the code under the pointer; it takes no input.
void show_hint(Workstation& ws, const std::string& text) {
  ws.FrmTooltip.Lab1.text = text;
  ws.FrmTooltip.loaded = true;
  ws.FrmTooltip.visible = true;
}

void wire_pickers(Workstation& ws) {
  wire_present_weather(ws);
  wire_past_hour(ws);
  wire_past_weather(ws);
  wire_sky_letters(ws);
  wire_ground(ws);
  wire_irix(ws);
  wire_entry_images(ws);
}

}  // namespace obsdesk
