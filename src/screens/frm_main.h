// FrmMain: the start screen and the keeper of the bank's location. It stays
// loaded for the whole run; its hidden boxes are how the other screens read the
// bank paths, the colour, the screen size and the pressures, rain and
// temperatures of the day's main hours.
#pragma once

#include <array>

#include "bank/data_control.h"
#include "core/control.h"

namespace obsdesk {

struct FrmMain : Screen {
  FrmMain();

  // Commands of the start screen.
  Button Command2{*this, "Command2", "Run"};
  Button Command10{*this, "Command10", "Charactris Praimery Station"};
  Button Command4{*this, "Command4", "Seting Of Past Weather"};
  Button Command9{*this, "Command9", "Help"};
  Button CmdEnd{*this, "CmdEnd", "Exit"};
  Button Command12{*this, "Command12", "Minimize"};
  Button Command1{*this, "Command1", "Change Ostan"};
  ComboBox ComboOstan{*this, "ComboOstan"};  // the provinces
  Label LabOstan{*this, "LabOstan"};         // province in use, column NameOstan
  Label LabColor{*this, "LabColor", "Change BackColor"};
  Label Label2{*this, "Label2", "ID"};       // shows or hides Text1
  Label Label3{*this, "Label3", "      براي ديدن ويا مخفي شدن باكس لطفا كليك نمائيد   "};
  Label Label34{*this, "Label34", "Pleas  DoubleClick"};
  Label Label43{*this, "Label43", "درباره ما"};
  Label LabName{*this, "LabName", "VARDOK"};  // the program's folder name
  Label Label7{*this, "Label7"};              // moving banner
  Frame Frame3{*this, "Frame3"};

  TextBox Text1{*this, "Text1"};  // row number of the station, column ID

  // Choosing the bank databases.
  Frame Frame1{*this, "Frame1"};
  Label Label4{*this, "Label4", "Kashf"};
  Label Label5{*this, "Label5", "Station"};
  Label Label6{*this, "Label6", "Rain"};
  Label Label8{*this, "Label8", "VARDOK\\BANK\\CCCC\\ACCESS\\Kashf.mdb"};
  OptionButton Option1{*this, "Option1", "Kashf"};
  OptionButton Option2{*this, "Option2", "Station"};
  Button cmdOpen{*this, "cmdOpen", "OpenBank"};
  TextBox CommonDialog1{*this, "CommonDialog1"};  // the file name the chooser returns

  // Shared values.
  TextBox txtpathnamebank1{*this, "txtpathnamebank1"};  // path of Kashf.mdb without the drive
  TextBox txtpathnamebank2{*this, "txtpathnamebank2"};  // path of the Station database
  TextBox txtpathnamebank3{*this, "txtpathnamebank3"};  // path of Rain.mdb
  TextBox TxtBackColor{*this, "TxtBackColor"};          // colour number, column N_BackColor
  TextBox TxtResolution{*this, "TxtResolution"};        // screen size, width " * " height
  TextBox TxtResolutionNew{*this, "TxtResolutionNew"};  // size chosen in the resolution dialog

  // Working copies of the past-hours row, read by the entry rules.
  TextBox txt00T{*this, "txt00T"}, txt03T{*this, "txt03T"}, txt06T{*this, "txt06T"},
      txt09T{*this, "txt09T"}, txt12T{*this, "txt12T"}, txt15T{*this, "txt15T"},
      txt18T{*this, "txt18T"}, txt21T{*this, "txt21T"};  // dry-bulb temperatures
  TextBox txtrain00{*this, "txtrain00"}, txtrain03{*this, "txtrain03"}, txtrain06{*this, "txtrain06"},
      txtrain09{*this, "txtrain09"}, txtrain12{*this, "txtrain12"}, txtrain15{*this, "txtrain15"},
      txtrain18{*this, "txtrain18"}, txtrain21{*this, "txtrain21"};  // rain of the three hours ending then
  TextBox txtp00qfe{*this, "txtp00qfe"}, txtp03qfe{*this, "txtp03qfe"}, txtp06qfe{*this, "txtp06qfe"},
      txtp09qfe{*this, "txtp09qfe"}, txtp12qfe{*this, "txtp12qfe"}, txtp15qfe{*this, "txtp15qfe"},
      txtp18qfe{*this, "txtp18qfe"}, txtp21qfe{*this, "txtp21qfe"};  // station pressures
  TextBox txtutcpast{*this, "txtutcpast"};  // hour of the last main report

  // The Past row itself, bound to PAST.mdb.
  TextBox txt00TB{*this, "txt00TB"}, txt03TB{*this, "txt03TB"}, txt06TB{*this, "txt06TB"},
      txt09TB{*this, "txt09TB"}, txt12TB{*this, "txt12TB"}, txt15TB{*this, "txt15TB"},
      txt18TB{*this, "txt18TB"}, txt21TB{*this, "txt21TB"};
  TextBox txtrain00b{*this, "txtrain00b"}, txtrain03b{*this, "txtrain03b"}, txtrain06b{*this, "txtrain06b"},
      txtrain09b{*this, "txtrain09b"}, txtrain12b{*this, "txtrain12b"}, txtrain15b{*this, "txtrain15b"},
      txtrain18b{*this, "txtrain18b"}, txtrain21b{*this, "txtrain21b"};
  TextBox txtp00qfeb{*this, "txtp00qfeb"}, txtp03qfeb{*this, "txtp03qfeb"}, txtp06qfeb{*this, "txtp06qfeb"},
      txtp09qfeb{*this, "txtp09qfeb"}, txtp12qfeb{*this, "txtp12qfeb"}, txtp15qfeb{*this, "txtp15qfeb"},
      txtp18qfeb{*this, "txtp18qfeb"}, txtp21qfeb{*this, "txtp21qfeb"};
  TextBox txtutcpastb{*this, "txtutcpastb"};

  // The day tables by main hour: index h / 3 for the hours 00, 03, ... 21.
  std::array<TextBox*, 8> T, TB, rain, rainB, qfe, qfeB;

  // The control databases.
  DataControl SelectOstan{"SelectOstan"};
  DataControl BackColor{"BackColor"};
  DataControl IDPaths{"IDPaths"};  // ID.MDB: the bank paths
  DataControl PAST{"PAST"};
  DataControl ID{"ID"};            // ID.mdb again: the row number
};

// Index into the day tables for a main hour (0, 3, ... 21); -1 for another hour.
int main_hour_index(int hour);

}  // namespace obsdesk
