#include "archive/browser.h"

#include "bank/bank.h"
#include "core/program.h"
#include "core/workstation.h"

namespace obsdesk {

namespace {

void FrmDisplayKashf_load(Workstation& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  ws.set(b.Text44, station_heading(ws));
  b.KASHF.open(ws, resolve_bank_path(ws.bank_root(), ws.FrmMain.txtpathnamebank1.text), "KASHF");
  b.KASHF.move_last(ws);
}

}  // namespace

void wire_browser(Workstation& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  b.on(ScreenEvent::Load, FrmDisplayKashf_load);
  b.Image11.on(Event::Click, [](Workstation& w) {
    w.hide(w.FrmDisplayKashf);
    w.show(w.FrmMain);
  });
}

}  // namespace obsdesk
