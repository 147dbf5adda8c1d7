// FrmSelectStation: the station picker. It lists the stations of the province
// in use (FrmMain.LabOstan); a click on a name returns it to the caller.
#pragma once

#include <functional>
#include <string>

#include "core/control.h"

namespace obsdesk {

class Workstation;

struct FrmSelectStation : Screen {
  FrmSelectStation();
  ComboBox Combo1{*this, "Combo1"};    // the stations of the province
  TextBox Txtfind{*this, "Txtfind"};  // the name chosen, returned to the caller
};

// The head text of the list before a name is chosen.
inline constexpr const char* kSelectStationHead = "     Select Station";

// Opens the picker modally with a start text in Txtfind; when it closes, the
// text of Txtfind goes to the continuation and the picker is unloaded. Closed
// without a choice it returns an empty text.
void select_station(Workstation& ws, const std::string& start,
                    std::function<void(Workstation&, const std::string&)> on_text);

// The province list of the start screen and the picker's own rules.
void wire_catalogue(Workstation& ws);

}  // namespace obsdesk
