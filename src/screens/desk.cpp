#include "screens/desk.h"

namespace obsdesk {

Desk::Desk(std::filesystem::path bank_root, Services services) : Engine(std::move(bank_root), services) {
  Derive = this->bank_root().string();
  if (Derive.empty() || Derive.back() != '/') Derive += '/';
  add_screens({&frmAbout, &FrmMain, &FrmEntezar, &FrmERR, &FrmHelp, &FrmOption, &FrmKashf, &FrmDisplayKashf,
               &FrmCode, &FrmSelectStation, &FrmFind, &FrmPol, &FrmBUFR, &FrmWP, &FrmNTF, &FrmFeali, &FrmGozashteh,
               &Frmgozashteh1, &FrmGozashteh2, &FrmBCO, &FrmBCOY, &FrmBCOBCOY, &FrmZamin, &FrmIRIX, &FrmTooltip});
  set_panels(*this, FrmERR, FrmERR.Label1, FrmKashf);
}

}  // namespace obsdesk
