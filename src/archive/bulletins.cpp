#include "archive/bulletins.h"

#include "archive/text_archive.h"
#include "bank/journal.h"
#include "screens/record.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

// The heading of a SYNOP bulletin by the hour text: the main hours and the
// intermediate ones; at any other hour no SYNOP bulletin is made.
std::string synop_heading(std::string_view hour) {
  for (const char* h : {"00", "06", "12", "18"})
    if (hour == h) return "SMIR46 ";
  for (const char* h : {"03", "09", "15", "21"})
    if (hour == h) return "SIIR47 ";
  return {};
}

void add_if(std::vector<std::string>& lines, const std::string& line) {
  if (!line.empty()) lines.push_back(line);
}

Bulletin synop(const BulletinFields& f, const std::string& heading) {
  Bulletin b{"SYNOP.DAT", {"ZCZC", heading + f.cccc + " " + f.ddhh + "00", "AAXX " + f.ddhh + "1",
                           f.numcod + " " + f.synop1}};
  add_if(b.lines, f.synop2);
  b.lines.push_back("NNNN");
  return b;
}

Bulletin metar(const BulletinFields& f) {
  Bulletin b{"METAR.DAT",
             {"ZCZC", "SAIR48 " + f.cccc + " " + f.ddhh + "00", "METAR " + f.cccc + " " + f.ddhh + "00Z" + f.metar1}};
  add_if(b.lines, f.metar2);
  b.lines.push_back("NNNN");
  return b;
}

Bulletin metar30(const BulletinFields& f) {
  Bulletin b{"METAR.DAT",
             {"ZCZC", "SAIR48 " + f.cccc + " " + f.day + f.hhmm, "METAR " + f.cccc + " " + f.day + f.hhmm + "Z" + f.metar1}};
  add_if(b.lines, f.metar2);
  b.lines.push_back("NNNN");
  return b;
}

Bulletin speci(const BulletinFields& f) {
  Bulletin b{"SPECI.DAT", {"ZCZC", "SPIR45 " + f.cccc + " " + left(f.speci_time, 6), "SPECI " + f.cccc + " " + f.speci1}};
  add_if(b.lines, f.speci2);
  b.lines.push_back("NNNN");
  return b;
}

}  // namespace

std::vector<Bulletin> bulletins_for(ReportKind kind, const BulletinFields& f) {
  std::vector<Bulletin> out;
  // A report that coded no text of a form sends no bulletin of it: its lines are
  // empty from the moment the report opened or its coder failed.
  if (is_synop_kind(kind) && !f.synop1.empty()) {
    const std::string heading = synop_heading(f.hour);
    if (!heading.empty()) out.push_back(synop(f, heading));
  }
  if ((kind == ReportKind::Metar || kind == ReportKind::SynMet) && !f.metar1.empty()) out.push_back(metar(f));
  if (kind == ReportKind::Metar30 && !f.metar1.empty()) out.push_back(metar30(f));
  if (kind == ReportKind::Speci && !f.speci1.empty()) out.push_back(speci(f));
  return out;
}

BulletinFields bulletin_fields(Desk& ws) {
  const FrmDisplayKashf& b = ws.FrmDisplayKashf;
  BulletinFields f;
  f.cccc = ws.FrmOption.TXTCOD.text;
  f.numcod = ws.FrmOption.NUMCOD.text;
  f.hour = b.Text1.text;
  f.ddhh = mid(b.TXTYYMMDDTT.text, 5, 4);
  f.day = b.TXTDAYmi.text;
  f.hhmm = b.txt1.text;
  f.speci_time = ws.FrmCode.Text10.text;
  f.synop1 = ws.SynopLine1;
  f.synop2 = ws.SynopLine2;
  f.metar1 = ws.MetarLine1;
  f.metar2 = ws.MetarLine2;
  f.speci1 = ws.SpeciLine1;
  f.speci2 = ws.SpeciLine2;
  return f;
}

void add_bulletins(Desk& ws, SaveJournal& journal, const std::vector<Bulletin>& bulletins) {
  for (const Bulletin& b : bulletins) {
    const std::string name = trim(ws.FrmMain.LabName.text) + "\\" + b.file;
    ws.set(ws.FrmDisplayKashf.txtpathnamebank, name);
    journal.replace(bank_file(ws, name), lines_bytes(b.lines));
  }
}

}  // namespace obsdesk
