#include "archive/copy_out.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "bank/bank.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {


namespace {

// The whole of a bulletin file of the program's folder, as text. A missing file
// fails with the runtime's words.
std::string read_bulletin(Desk& ws, const char* name) {
  const std::string prog = trim(ws.FrmMain.LabName.text);
  const auto path = resolve_bank_path(ws.bank_root(), prog + "\\" + name);
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("File not found");
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  return from_cp1256(bytes);
}

// Each copy has its own trap: a failure is told in a message box and the
// clipboard keeps what it had.
void copy_one(Desk& ws, const char* name) {
  try {
    ws.set(ws.FrmPol.Text, read_bulletin(ws, name));
    ws.clipboard().clear();
    ws.clipboard().set_text(ws.FrmPol.Text.text);
  } catch (const std::exception& e) {
    ws.message(e.what());
  }
}

// The METAR bulletin, then the SYNOP one added behind it.
void Command5_click(Desk& ws) {
  try {
    ws.set(ws.FrmPol.Text, read_bulletin(ws, "METAR.DAT"));
    ws.clipboard().clear();
    ws.clipboard().set_text(ws.FrmPol.Text.text);
    ws.set(ws.FrmPol.Text, ws.FrmPol.Text.text + read_bulletin(ws, "SYNOP.DAT"));
    ws.clipboard().clear();
    ws.clipboard().set_text(ws.FrmPol.Text.text);
  } catch (const std::exception& e) {
    ws.message(e.what());
  }
}

void Command1_click(Desk& ws) {
  ws.hide(ws.FrmPol);
  ws.show(ws.FrmDisplayKashf);
  ws.clipboard().clear();
  ws.unload(ws.FrmPol);
}

}  // namespace

// Opens with an empty clipboard and the buttons of the report kind just saved.
void open_copy_out(Desk& ws) {
  FrmPol& p = ws.FrmPol;
  const ReportKind kind = report_kind_of(ws.FrmDisplayKashf.TXTSEL.text);
  ws.clipboard().clear();
  p.Command2.enabled = kind == ReportKind::Metar || kind == ReportKind::Metar30 || kind == ReportKind::SynMet;
  p.Command3.enabled = is_synop_kind(kind);
  p.Command4.enabled = kind == ReportKind::Speci;
  p.Command6.enabled = p.Command3.enabled;
  ws.show(p);
}

void wire_copy_out(Desk& ws) {
  FrmPol& p = ws.FrmPol;
  p.Command1.on(Event::Click, Command1_click);
  p.Command2.on(Event::Click, [](Desk& w) { copy_one(w, "METAR.DAT"); });
  p.Command3.on(Event::Click, [](Desk& w) { copy_one(w, "SYNOP.DAT"); });
  p.Command4.on(Event::Click, [](Desk& w) { copy_one(w, "SPECI.DAT"); });
  p.Command5.on(Event::Click, Command5_click);
}

}  // namespace obsdesk
