// Where an entry rule hands over to a screen of a topic above its own: the wind
// and ground rules open the phenomenon pickers. The station sets each hand-over
// when it binds the rules.
#pragma once

#include <functional>

namespace obsdesk {

class Desk;

struct Handoffs {
  // The iR iX picker; the flag empties its TXTIR first.
  std::function<void(Desk&, bool clear_ir)> open_irix_picker;
  // FrmZamin, the state of ground.
  std::function<void(Desk&)> open_ground_picker;
};

}  // namespace obsdesk
