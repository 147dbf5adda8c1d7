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
  };
  return forms;
}

}  // namespace obsdesk
