// The dialogs of the system as data: copy-out, past hours, search, pressure
// tendency, station choice and the BUFR reader.
#pragma once

#include "bank/data_control.h"
#include "core/control.h"

namespace obsdesk {

struct FrmPol : Screen {
  FrmPol();
  // The text read from the bulletin file; the desktop also offers it to other
  // programs as the item TXTSOUTH of the link topic "SOUTH|MYTOPIC".
  TextBox Text{*this, "Text"};
  Button Command1{*this, "Command1", "Back"};
  Button Command6{*this, "Command6", "Copy BUFR path"};  // where SYNOP.BUFR lies
  Button Command2{*this, "Command2", "Copy Metar"};
  Button Command3{*this, "Command3", "Copy Synop"};
  Button Command4{*this, "Command4", "Copy SPECI"};
  Button Command5{*this, "Command5", "Copy Metar Synop"};
};

struct FrmWP : Screen {
  FrmWP();
  // Temperatures at 00, 03, ... 21 UTC (T00 to T21).
  TextBox Text1{*this, "Text1"}, Text2{*this, "Text2"}, Text3{*this, "Text3"}, Text4{*this, "Text4"},
      Text5{*this, "Text5"}, Text6{*this, "Text6"}, Text7{*this, "Text7"}, Text8{*this, "Text8"};
  // Rain of the three hours ending at 00, 03, ... 21 UTC (RAIN00 to RAIN21).
  TextBox Text9{*this, "Text9"}, Text10{*this, "Text10"}, Text11{*this, "Text11"}, Text12{*this, "Text12"},
      Text13{*this, "Text13"}, Text14{*this, "Text14"}, Text15{*this, "Text15"}, Text16{*this, "Text16"};
  // Station pressures at 00, 03, ... 21 UTC (QFE00B to QFE21B).
  TextBox Text17{*this, "Text17"}, Text18{*this, "Text18"}, Text19{*this, "Text19"}, Text20{*this, "Text20"},
      Text21{*this, "Text21"}, Text22{*this, "Text22"}, Text23{*this, "Text23"}, Text24{*this, "Text24"};
  TextBox Text25{*this, "Text25"};  // hour of the last main report (utcpastb)
  TextBox Txt{*this, "Txt"};        // the value a box held when it got the focus
  Button Command1{*this, "Command1", "Save Exit"};

  // The 24 boxes of the family, Text1 to Text24, in the order of the Enter walk.
  std::array<TextBox*, 24> family;

  DataControl Data1{"Data1"};
};

struct FrmFind : Screen {
  FrmFind();
  TextBox TXTDAYmi{*this, "TXTDAYmi", 2};     // Gregorian day
  ComboBox ComMI{*this, "ComMI"};             // Gregorian month, "JAN" to "DEC"
  TextBox TXTYEARmi{*this, "TXTYEARmi", 4};   // Gregorian year
  TextBox TXTDAYsh{*this, "TXTDAYsh", 2};     // Persian day
  ComboBox ComSH{*this, "ComSH"};             // Persian month by name
  TextBox TXTYEARsh{*this, "TXTYEARsh", 4};   // Persian year
  TextBox DTPicker1{*this, "DTPicker1"};      // the calendar control's date, "YYYY-MM-DD"
  TextBox txttime{*this, "txttime", 2};       // hour
  TextBox TXTDAYWEEK{*this, "TXTDAYWEEK"};    // weekday of the Gregorian date
  TextBox Txtfind{*this, "Txtfind"};          // the search text, caption "YYMMDDTT"
  Button CmdFind{*this, "CmdFind", "Find"};

  bool found = false;     // "Find" was pressed: the dialog returns Txtfind
  bool updating = false;  // the boxes are being filled from one another
};

inline constexpr long kMarkerColor = 0x00FFFF;  // yellow

struct FrmNTF : Screen {
  FrmNTF();

  // The nine barograph traces, one for each characteristic 0 to 8.
  Image NTF0{*this, "NTF0", "ntf0"}, NTF1{*this, "NTF1", "ntf1"}, NTF2{*this, "NTF2", "ntf2"},
      NTF3{*this, "NTF3", "ntf3"}, NTF4{*this, "NTF4", "ntf4"}, NTF5{*this, "NTF5", "ntf5"},
      NTF6{*this, "NTF6", "ntf6"}, NTF7{*this, "NTF7", "ntf7"}, NTF8{*this, "NTF8", "ntf8"};
  // One marker behind each trace, Label1 behind NTF0 up to Label9 behind NTF8:
  // transparent (not seen) until the pressures say the trace fits, then opaque.
  Label Label1{*this, "Label1"}, Label2{*this, "Label2"}, Label3{*this, "Label3"}, Label4{*this, "Label4"},
      Label5{*this, "Label5"}, Label6{*this, "Label6"}, Label7{*this, "Label7"}, Label8{*this, "Label8"},
      Label9{*this, "Label9"};
  TextBox Text1{*this, "Text1", 1};                 // the characteristic typed as a digit
  Button Command1{*this, "Command1", "Cancel"};

  // By characteristic 0 to 8.
  std::array<Image*, 9> trace;
  std::array<Label*, 9> marker;
};

struct FrmSelectStation : Screen {
  FrmSelectStation();
  ComboBox Combo1{*this, "Combo1"};    // the stations of the province
  TextBox Txtfind{*this, "Txtfind"};  // the name chosen, returned to the caller
};

struct FrmBUFR : Screen {
  FrmBUFR();
  TextBox Text1{*this, "Text1"};  // the message's values, one a line
  Button Command1{*this, "Command1", "Back"};
};

}  // namespace obsdesk
