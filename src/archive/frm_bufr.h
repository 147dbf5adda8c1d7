// FrmBUFR: the BUFR message of the latest SYNOP read back and shown in plain
// words, so that the observer sees what the centre will receive. It opens from
// the browser's button cmdBUFR.
#pragma once

#include "core/control.h"

namespace obsdesk {

struct FrmBUFR : Screen {
  FrmBUFR();
  TextBox Text1{*this, "Text1"};  // the message's values, one a line
  Button Command1{*this, "Command1", "Back"};
};

}  // namespace obsdesk
