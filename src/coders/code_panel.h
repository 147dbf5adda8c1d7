// The code panel's behaviour: its store COOD (one row in the station's Kashf
// database), the mirror of the METAR frame into the SPECI frame, the count of
// the S line, the derived wind Text34, the copies made when it loads, and its
// Back buttons.
#pragma once

#include <optional>

#include "screens/frm_code.h"
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

class Desk;
class Database;
struct FrmCode;
struct Control;

// Loads the panel once, as a reference to it does: the stored row into the
// boxes, then the loading copies. Everything that writes the panel calls it
// first, so that a later load cannot overwrite what was written.
void load_code_panel(Desk& ws);
// Writes the panel's boxes into the COOD row.
void save_code_panel(Desk& ws);

// The dddff form of an Nddff group for Text34; nullopt for the blank group,
// which leaves Text34 as it is.
std::optional<std::string> derived_wind(std::string_view nddff);

void wire_code_panel(Desk& ws);

}  // namespace obsdesk
