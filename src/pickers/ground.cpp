// FrmZamin: the state of the ground, E without snow (e0 to e9) and E' with snow or
// ice (s0 to s9), for the groups 3EsnTgTg and 4E'sss of section 3.
#include <string>

#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/board_tables.h"
#include "pickers/pickers.h"

namespace obsdesk {

void ground_click(Desk& ws, int index) {
  const GroundState& g = ground_state_table()[index];
  FrmKashf& k = ws.FrmKashf;
  FrmCode& p = ws.FrmCode;
  const std::string n(g.figure);
  const bool no_ground_minimum = trim(k.Text68.text) == "/";
  ws.set(k.Image3, std::string(g.picture));
  ws.GroundCode = n;
  std::string state = n;
  if (!g.snow) {
    ws.set(p.Text92, std::string(5, ' '));  // the snow group is not reported
    // 3EsnTgTg
    if (no_ground_minimum) {
      ws.set(p.Text91, "3" + n + "///");
      state = "0";  // this branch has always stored "0" as the state, whatever E was
    } else {
      ws.set(p.Text91, "3" + n + ws.GroundSign + ws.GroundTemp);
    }
  } else {
    // 4E'sss
    ws.set(p.Text92, "4" + n + ws.SnowDepth);
    ws.set(p.Text91, no_ground_minimum ? std::string("3////") : "3/" + ws.GroundSign + ws.GroundTemp);
  }
  ws.set(ws.FrmDisplayKashf.Text52, state);
  ws.hide(ws.FrmTooltip);
  ws.hide(ws.FrmZamin);
  ws.focus(g.snow ? static_cast<Control&>(k.Text69) : static_cast<Control&>(k.Text63));
}

// A digit typed in the board's box picks the ground with snow of that figure.
void FrmZamin_Text1_key_up(Desk& ws) {
  const std::string ch = char_at(ws.FrmZamin.Text1.text, 1);
  if (!is_digit(ch)) return;
  ground_click(ws, 10 + (ch[0] - '0'));
}

void open_ground_picker(Desk& ws) { ws.show(ws.FrmZamin); }

void wire_ground(Desk& ws) {
  FrmZamin& z = ws.FrmZamin;
  for (int i = 0; i < 20; ++i) {
    z.buttons[i]->on(Event::Click, [i](Desk& w) { ground_click(w, i); });
    const GroundState& g = ground_state_table()[i];
    bind_hint(*z.buttons[i], std::string(g.snow ? "E' CODE " : "E CODE ") + std::string(g.figure));
  }
  z.Text1.on(Event::KeyUp, FrmZamin_Text1_key_up);
  z.Command1.on(Event::Click, [](Desk& w) { w.hide(w.FrmZamin); });
}

}  // namespace obsdesk
