#include "station/report_kind.h"

#include "screens/entry.h"
#include "screens/record.h"
#include "pickers/pickers.h"
#include "station/session.h"
#include "station/workstation.h"

namespace obsdesk {

namespace {

void show(Control& c, bool on) { c.visible = on; }

}  // namespace

void Combo5_change(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  const ReportKind kind = report_kind(ws);
  if (kind == ReportKind::None) {
    // A typed text that is none of the five is wiped and the box keeps the focus.
    ws.set(k.Combo5, "");
    ws.focus(k.Combo5);
    return;
  }
  const bool synop = kind == ReportKind::Synop;
  const bool synop_kind = is_synop_kind(kind);
  const bool timed = kind == ReportKind::Metar30 || kind == ReportKind::Speci;  // time typed in txt1
  const bool speci = kind == ReportKind::Speci;

  show(k.Text1, !timed);
  show(k.txt1, timed);

  k.Text48.enabled = synop_kind;
  k.Text48.locked = !synop_kind;

  for (Control* c : Controls{&k.Text25, &k.Text38,
                     &k.Label17})
    show(*c, synop_kind);

  for (Control* c : Controls{&k.Text39, &k.Text40, &k.Text19, &k.Text20, &k.Text26, &k.TXTGUSTY,
                     &k.CMbMAX, &k.CMbMIN})
    c->locked = synop;

  show(k.Frame12, !synop);
  show(k.Frame17, synop_kind);
  show(k.Frame6, synop_kind);
  show(k.Frame15, synop_kind);
  if (!synop_kind)
    for (Control* c : Controls{&k.Frame5, &k.Frame8, &k.Frame9, &k.Frame10}) show(*c, false);
  for (Control* c : Controls{&k.Frame16, &k.txtmin,
                     &k.TXT_QNT, &k.Label42})
    show(*c, synop_kind);
  show(k.Txt_NLC, !synop);
  show(k.Cmb_NLC, !synop);
  for (Control* m : Controls{&k.Framesyn1, &k.Framesyn2, &k.Framesyn3}) show(*m, synop);
  if (speci)
    for (Control* c : Controls{&k.Txttimesun, &k.Txttond,
                       &k.Txtmaxwind})
      show(*c, false);

  show(k.TXTMET, !speci);
  show(k.TXTSPE, speci);

  FrmCode& p = ws.FrmCode;
  show(p.Frame7, synop_kind);
  show(p.Frame1, !synop && !speci);
  show(p.Frame2, speci);

  k.Cmdsynop.enabled = synop_kind;
  show(k.Command4, !speci);
  k.Command4.enabled = !synop && !speci;
  show(k.Command8, true);
  k.Command8.enabled = speci;

  k.txtt12.fore_color = synop_kind ? kWindowText : kWindowBack;

  apply_hour_rules(ws);

  if (kind == ReportKind::Metar) ws.focus(k.Text1);
  if (timed) ws.focus(k.txt1);
  if (synop_kind) open_irix_picker(ws, false);
}

void wire_report_kind(Desk& ws) { ws.FrmKashf.Combo5.on(Event::Change, Combo5_change); }

}  // namespace obsdesk
