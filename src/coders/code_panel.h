// The code panel's behaviour: its store COOD (one row in the station's Kashf
// database), the mirror of the METAR frame into the SPECI frame, the count of
// the S line, the derived wind Text34, the copies made when it loads, and its
// Back buttons.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

class Workstation;
class Database;
struct FrmCode;
struct Control;

// A box of the panel and the COOD column that holds it.
struct PanelField {
  std::string_view box;
  std::string_view column;
};
// Every stored box of the panel, METAR frame, SPECI frame, SYNOP frame.
const std::vector<PanelField>& cood_fields();
// The blank value of a column: five blanks for a SYNOP group, empty for METAR.
std::string cood_blank(std::string_view column);
// Creates the table COOD with its one row of blank values.
void create_cood_table(Database& db);

// Loads the panel once, as a reference to it does: the stored row into the
// boxes, then the loading copies. Everything that writes the panel calls it
// first, so that a later load cannot overwrite what was written.
void load_code_panel(Workstation& ws);
// Writes the panel's boxes into the COOD row.
void save_code_panel(Workstation& ws);

// The dddff form of an Nddff group for Text34; nullopt for the blank group,
// which leaves Text34 as it is.
std::optional<std::string> derived_wind(std::string_view nddff);

void wire_code_panel(Workstation& ws);

}  // namespace obsdesk
