// FrmSelectStation: the station picker. It lists the stations of the province
// in use (FrmMain.LabOstan); a click on a name returns it to the caller.
#pragma once

#include <functional>
#include <string>

#include "core/control.h"

namespace obsdesk {

class Desk;


// The head text of the list before a name is chosen.
inline constexpr const char* kSelectStationHead = "     Select Station";

// Opens the picker modally with a start text in Txtfind; when it closes, the
// text of Txtfind goes to the continuation and the picker is unloaded. Closed
// without a choice it returns an empty text.
void select_station(Desk& ws, const std::string& start,
                    std::function<void(Desk&, const std::string&)> on_text);

// The province list of the start screen and the picker's own rules.
void wire_catalogue(Desk& ws);

}  // namespace obsdesk
