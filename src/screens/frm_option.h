// FrmOption: the Station profile, one row of the Station table: name, codes,
// position, kind, instruments, observers and the limits every entry is checked
// against. Only the row chosen by the ID number is in force; every rule reads the
// profile through the boxes of this screen, which stays loaded.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "bank/data_control.h"
#include "core/control.h"

namespace obsdesk {

struct StationField {
  std::string_view box;     // box of FrmOption
  std::string_view column;  // column of the Station table
};

// Every box bound to the Station table, with its column. txtmaxm6 is stored in
// the column txtmaxm5, so rows 5 and 6 share one absolute maximum; txtmin3,
// txtminm3, txtmin8, txtminm8 and txtmin9 have no column of their own.
const std::vector<StationField>& station_fields();
// The columns of the Station table, each once, in order.
std::vector<std::string> station_columns();

struct FrmOption : Screen {
  FrmOption();

  TextBox Text21{*this, "Text21"};  // row number
  TextBox Text1{*this, "Text1"};  // station name
  TextBox NUMCOD{*this, "NUMCOD", 5};  // WMO station number
  TextBox TXTCOD{*this, "TXTCOD", 4};  // four-letter location indicator
  TextBox txtq1{*this, "txtq1", 2};  // latitude, degrees
  TextBox txtq2{*this, "txtq2", 2};  // latitude, minutes
  TextBox Text3{*this, "Text3", 2};  // longitude, degrees
  TextBox Text2{*this, "Text2", 2};  // longitude, minutes
  TextBox Txth{*this, "Txth"};  // station height, metres
  TextBox txthmin{*this, "txthmin"};  // highest obstacle within 25 miles
  TextBox txtci{*this, "txtci"};  // barometer error
  TextBox txttabesh{*this, "txttabesh"};  // radiation factor
  ComboBox Combo1{*this, "Combo1"};  // station kind
  ComboBox Combo2{*this, "Combo2"};  // evaporation pan or crop
  TextBox txtPnegar{*this, "txtPnegar"};  // 1: the pressure comes from the barograph
  TextBox txtPsang{*this, "txtPsang"};  // 1: it comes from the barometer
  TextBox Text5{*this, "Text5"};  // observer 1
  TextBox Text6{*this, "Text6"};  // observer 2
  TextBox Text7{*this, "Text7"};  // observer 3
  TextBox Text8{*this, "Text8"};  // observer 4
  TextBox Text9{*this, "Text9"};  // observer 5
  TextBox Text10{*this, "Text10"};  // observer 6
  TextBox Text11{*this, "Text11"};  // observer 7
  TextBox Text12{*this, "Text12"};  // observer 8
  OptionButton OptPnegar{*this, "OptPnegar", "فشار نگار"};
  OptionButton OptPsang{*this, "OptPsang", "فشار سنج"};

  // Limits: absolute minimum, minimum, maximum, absolute maximum of the rows
  // 1 air, 2 wet bulb, 3 rain, 4 pressure, 5 to 7 soil and ground, 8 wind, 9 evaporation.
  TextBox txtminm1{*this, "txtminm1"}, txtmin1{*this, "txtmin1"}, txtmax1{*this, "txtmax1"}, txtmaxm1{*this, "txtmaxm1"};
  TextBox txtminm2{*this, "txtminm2"}, txtmin2{*this, "txtmin2"}, txtmax2{*this, "txtmax2"}, txtmaxm2{*this, "txtmaxm2"};
  TextBox txtminm3{*this, "txtminm3"}, txtmin3{*this, "txtmin3"}, txtmax3{*this, "txtmax3"}, txtmaxm3{*this, "txtmaxm3"};
  TextBox txtminm4{*this, "txtminm4"}, txtmin4{*this, "txtmin4"}, txtmax4{*this, "txtmax4"}, txtmaxm4{*this, "txtmaxm4"};
  TextBox txtminm5{*this, "txtminm5"}, txtmin5{*this, "txtmin5"}, txtmax5{*this, "txtmax5"}, txtmaxm5{*this, "txtmaxm5"};
  TextBox txtminm6{*this, "txtminm6"}, txtmin6{*this, "txtmin6"}, txtmax6{*this, "txtmax6"}, txtmaxm6{*this, "txtmaxm6"};
  TextBox txtminm7{*this, "txtminm7"}, txtmin7{*this, "txtmin7"}, txtmax7{*this, "txtmax7"}, txtmaxm7{*this, "txtmaxm7"};
  TextBox txtminm8{*this, "txtminm8"}, txtmin8{*this, "txtmin8"}, txtmax8{*this, "txtmax8"}, txtmaxm8{*this, "txtmaxm8"};
  TextBox txtminm9{*this, "txtminm9"}, txtmin9{*this, "txtmin9"}, txtmax9{*this, "txtmax9"}, txtmaxm9{*this, "txtmaxm9"};

  // Constants of the formulae as shown; the computations use their own numbers.
  TextBox TXTGH{*this, "TXTGH"}, TXTg45{*this, "TXTg45"}, TXTG{*this, "TXTG"}, TXTR{*this, "TXTR"},
      TXTe{*this, "TXTe"}, TXTA{*this, "TXTA"}, txtloge{*this, "txtloge"}, txtpi{*this, "txtpi"},
      TXTPN{*this, "TXTPN"};
  Frame Frame2{*this, "Frame2"};

  // Commands: labels that act as buttons, in the menu Frame4 opened by "File".
  Label Label45{*this, "Label45", "File"};
  Frame Frame4{*this, "Frame4"};
  Label nnew{*this, "nnew", "New"};
  Label savee{*this, "savee", "Save"};
  Label EDITT{*this, "EDITT", "Edit"};
  Label UPDATE{*this, "UPDATE", "UpDate"};
  Label firstt{*this, "firstt", "First"};
  Label LASTt{*this, "LASTt", "Last"};
  Label nextt{*this, "nextt", "Next"};
  Label back{*this, "back", "Back"};
  Label search{*this, "search", "Search"};
  Label Closee{*this, "Closee", "Close"};

  // Limit boxes by row 1 to 9 (index 0 unused): absolute minimum, minimum,
  // maximum, absolute maximum.
  struct LimitRow { TextBox *minm, *min, *max, *maxm; };
  std::array<LimitRow, 10> limit;

  DataControl Station{"Station"};

  // The row is being added ("New") or its boxes were opened by "Edit"; either way
  // the boxes are written back when the row is left.
  bool adding = false;
  bool editing = false;

  // The boxes of the profile that "New" and "Edit" open and "Save" locks: every
  // bound box and every limit box, with or without a column.
  std::vector<Control*> entry_boxes();
  // The commands of the menu.
  std::vector<Control*> commands();
  // The Enter walk: each box and the box that follows it.
  std::vector<Control*> enter_walk();
};

}  // namespace obsdesk
