#include "desktop/designer_forms.h"

#include <QWidget>

#include "ui_frmAbout.h"
#include "ui_FrmMain.h"
#include "ui_FrmEntezar.h"
#include "ui_FrmERR.h"
#include "ui_FrmDisplayKashf.h"
#include "ui_FrmKashf.h"
#include "ui_FrmCode.h"
#include "ui_FrmPol.h"
#include "ui_FrmHelp.h"
#include "ui_FrmOption.h"
#include "ui_FrmSelectStation.h"
#include "ui_FrmFind.h"
#include "ui_FrmWP.h"
#include "ui_FrmNTF.h"
#include "ui_FrmFeali.h"
#include "ui_FrmGozashteh.h"
#include "ui_Frmgozashteh1.h"
#include "ui_FrmGozashteh2.h"
#include "ui_FrmBCO.h"
#include "ui_FrmBCOY.h"
#include "ui_FrmBCOBCOY.h"
#include "ui_FrmZamin.h"
#include "ui_FrmIRIX.h"
#include "ui_FrmTooltip.h"
#include "ui_FrmBUFR.h"

namespace obsdesk {

namespace {

// Builds the uic class's widgets on a new top widget; the widgets are then found
// by name, so the uic object itself is not kept.
template <typename Ui>
QWidget* build() {
  auto* w = new QWidget;
  Ui ui;
  ui.setupUi(w);
  return w;
}

}  // namespace

const std::map<std::string, FormMaker>& designer_forms() {
  static const std::map<std::string, FormMaker> forms = {
      {"frmAbout", build<Ui::frmAbout>},
      {"FrmMain", build<Ui::FrmMain>},
      {"FrmEntezar", build<Ui::FrmEntezar>},
      {"FrmERR", build<Ui::FrmERR>},
      {"FrmDisplayKashf", build<Ui::FrmDisplayKashf>},
      {"FrmKashf", build<Ui::FrmKashf>},
      {"FrmCode", build<Ui::FrmCode>},
      {"FrmPol", build<Ui::FrmPol>},
      {"FrmHelp", build<Ui::FrmHelp>},
      {"FrmOption", build<Ui::FrmOption>},
      {"FrmSelectStation", build<Ui::FrmSelectStation>},
      {"FrmFind", build<Ui::FrmFind>},
      {"FrmWP", build<Ui::FrmWP>},
      {"FrmNTF", build<Ui::FrmNTF>},
      {"FrmFeali", build<Ui::FrmFeali>},
      {"FrmGozashteh", build<Ui::FrmGozashteh>},
      {"Frmgozashteh1", build<Ui::Frmgozashteh1>},
      {"FrmGozashteh2", build<Ui::FrmGozashteh2>},
      {"FrmBCO", build<Ui::FrmBCO>},
      {"FrmBCOY", build<Ui::FrmBCOY>},
      {"FrmBCOBCOY", build<Ui::FrmBCOBCOY>},
      {"FrmZamin", build<Ui::FrmZamin>},
      {"FrmIRIX", build<Ui::FrmIRIX>},
      {"FrmBUFR", build<Ui::FrmBUFR>},
      {"FrmTooltip", build<Ui::FrmTooltip>},
  };
  return forms;
}

}  // namespace obsdesk
