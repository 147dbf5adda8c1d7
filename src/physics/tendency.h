// FrmNTF: the pressure tendency dialog. After the barometer reading of a SYNOP
// the observer chooses the barograph trace of the last three hours, by picture
// or by digit; the dialog fills the characteristic Text38 and works the amount
// Text25 out of QFE and the station pressure of three hours before.
#pragma once

#include <array>

#include "core/control.h"

namespace obsdesk {

class Workstation;

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

// The colour of an opaque marker.
inline constexpr long kMarkerColor = 0x00FFFF;  // yellow

// The station pressure of three hours before the hour of the observation, one of
// FrmMain's txtp00qfe ... txtp21qfe; nullptr when the hour is not a main hour.
TextBox* previous_pressure(Workstation& ws);

// The characteristic a chosen, by a click on its trace or by its digit.
void choose_tendency(Workstation& ws, int a);

void wire_tendency_dialog(Workstation& ws);

}  // namespace obsdesk
