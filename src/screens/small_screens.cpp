#include "screens/small_screens.h"

#include "screens/help_text.h"

namespace obsdesk {

frmAbout::frmAbout() : Screen("frmAbout") {
  caption = "About obsdesk";
  lblVersion.text = "Version 1.0.0";
  Label8.text = "obsdesk: the duty observer's workstation";
}

FrmEntezar::FrmEntezar() : Screen("FrmEntezar") {}

FrmERR::FrmERR() : Screen("FrmERR") {
  takes_focus = false;  // it never holds the caller
  Combo1.items = {" 800 *  600", " 960 *  600", "1024 *  768", "1152 *  864", "1280 *  600",
                  "1280 *  720", "1280 *  768", "1280 *  800", "1280 *  960", "1280 * 1024"};
  Combo1.visible = false;
  TxtResolutionOld.visible = false;
  Command2.visible = false;
}

FrmHelp::FrmHelp() : Screen("FrmHelp") {
  caption = "Help";
  Text1.text = kHelpText;
  Text1.locked = true;
}

}  // namespace obsdesk
