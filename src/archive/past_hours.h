// FrmWP: the past hours editor. It corrects by hand the one row of the Past
// table: the dry-bulb temperatures, three-hour rain and station pressures of the
// eight main hours, and the hour of the last main report.
#pragma once

#include <array>

#include "bank/data_control.h"
#include "core/control.h"

namespace obsdesk {

class Workstation;

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

// A past value as the editor takes it: its first four characters are digits,
// "/", "." or the character of code 250, with one "." at most among them. A
// minus sign is not taken: this editor accepts no negative value.
bool past_value_ok(const std::string& text);

// The hour box: "", "0", "1" and "2" while typing, two characters only as one
// of the eight main hours; "24" is written "00". Returns the text the box keeps.
std::string past_hour_text(const std::string& text);

void wire_past_hours(Workstation& ws);

}  // namespace obsdesk
