// FrmFind: the date dialog of the browser's search. A date given in either
// calendar, and an hour, becomes the start of a report's key (YYMMDDTT), which
// the browser looks for.
#pragma once

#include "core/control.h"

namespace obsdesk {

class Workstation;

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

void wire_search(Workstation& ws);

}  // namespace obsdesk
