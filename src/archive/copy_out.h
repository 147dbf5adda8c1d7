// FrmPol: the copy-out dialog that opens after each save. It puts the bulletin
// just written on the clipboard, so that the observer can paste it elsewhere.
#pragma once

#include "core/control.h"

namespace obsdesk {

class Workstation;

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

inline constexpr const char* kLinkTopic = "SOUTH|MYTOPIC";

void wire_copy_out(Workstation& ws);

}  // namespace obsdesk
