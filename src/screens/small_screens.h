// The small screens of the start: the about screen, the wait screen, the message
// panel and the help.
#pragma once

#include "core/control.h"

namespace obsdesk {

// The first screen of the program, and the "about" box.
struct frmAbout : Screen {
  frmAbout();
  Label lblTitle{*this, "lblTitle", "obsdesk"};
  Label lblVersion{*this, "lblVersion"};
  Label Label8{*this, "Label8"};  // the names of the people who took part
  Button cmdOK{*this, "cmdOK", "OK"};
};

// The wait screen: it acts on the start screen's next-screen code on its first tick.
struct FrmEntezar : Screen {
  FrmEntezar();
  Label Label1{*this, "Label1", "لطفا كمي صبر كنيد"};
  Label ProgressBar1{*this, "ProgressBar1", "0"};
};

// The message panel: one caption and an "Ok"; it never holds the caller. Its
// second shape asks for a screen size.
struct FrmERR : Screen {
  FrmERR();
  Label Label1{*this, "Label1"};
  Button Command1{*this, "Command1", "Ok"};
  Button Command2{*this, "Command2", "No"};
  ComboBox Combo1{*this, "Combo1"};
  TextBox TxtResolutionOld{*this, "TxtResolutionOld"};
};

struct FrmHelp : Screen {
  FrmHelp();
  TextBox Text1{*this, "Text1"};
  Button Command1{*this, "Command1", "Back"};
};

}  // namespace obsdesk
