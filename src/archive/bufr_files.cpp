#include "archive/bufr_files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "archive/copy_out.h"
#include "screens/dialogs.h"
#include "archive/text_archive.h"
#include "bank/bank.h"
#include "bank/journal.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace fs = std::filesystem;


namespace {

// Degrees and minutes of the profile as degrees. The profile keeps no
// hemisphere: the stations lie north of the equator and east of Greenwich.
std::optional<double> degrees(const std::string& deg, const std::string& min) {
  if (trim(deg).empty() || !is_numeric(trim(deg))) return std::nullopt;
  return val(deg) + val(min) / 60.0;
}

std::optional<double> number(const std::string& text) {
  const std::string t = trim(text);
  if (t.empty() || !is_numeric(t)) return std::nullopt;
  return val(t);
}

std::string latest_name(Desk& ws) { return trim(ws.FrmMain.LabName.text) + "\\" + kSynopBufr; }

std::string read_all(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("File not found: " + file.string());
  return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// The reader: SYNOP.BUFR decoded by ecCodes, its values in words. A missing or
// damaged file is told in a message box.
void cmdBUFR_click(Desk& ws) {
  try {
    const auto reports = decode_bufr(read_all(bank_file(ws, latest_name(ws))));
    if (reports.empty()) throw std::runtime_error("No BUFR message in " + std::string(kSynopBufr));
    std::string text;
    for (const std::string& line : bufr_words(reports.back())) text += (text.empty() ? "" : "\r\n") + line;
    ws.set(ws.FrmBUFR.Text1, text);
    ws.show(ws.FrmBUFR);
  } catch (const std::exception& e) {
    ws.message(e.what());
  }
}

// The copy-out dialog hands over where the message lies, for the program that
// sends it.
void Command6_click(Desk& ws) {
  ws.clipboard().clear();
  ws.clipboard().set_text(bank_file(ws, latest_name(ws)).string());
}

}  // namespace

BufrReport bufr_report(Desk& ws) {
  const FrmDisplayKashf& b = ws.FrmDisplayKashf;
  const FrmOption& o = ws.FrmOption;
  BufrReport r;
  r.station.numcod = trim(o.NUMCOD.text);
  r.station.wigos_local = r.station.numcod;
  r.station.name = trim(o.Text1.text);
  r.station.latitude = degrees(o.txtq1.text, o.txtq2.text);
  r.station.longitude = degrees(o.Text3.text, o.Text2.text);
  r.station.height_m = number(o.Txth.text);
  r.year = int_val(trim(b.TXTYEARmi.text));
  r.month = int_val(trim(b.TXTMONTHMI.text));
  r.day = int_val(trim(b.TXTDAYmi.text));
  r.hour = int_val(trim(b.Text1.text));
  r.values = decode_synop(trim(b.txtSYN.text));
  // The humidity as the SYNOP coder keeps it for the archive line: whole per cent.
  if (const auto rh = number(b.Text31.text)) r.relative_humidity = round_to(*rh);
  return r;
}

std::string bufr_day_file(Desk& ws) {
  const std::string key = trim(ws.FrmDisplayKashf.TXTYYMMDDTT.text);
  return station_folder(ws) + "\\TEXT\\BUFR\\B" + station_nnn(ws.FrmOption.NUMCOD.text) + left(key, 6) + ".BUFR";
}

void add_synop_bufr(Desk& ws, SaveJournal& journal) {
  const std::string message = encode_bufr(bufr_report(ws));
  journal.replace(bank_file(ws, latest_name(ws)), message);
  const fs::path day = bank_file(ws, bufr_day_file(ws));
  std::error_code ec;
  // Banks made before the BUFR files have no folder for them: it is made here,
  // one level only, so that a missing station tree still fails by name.
  if (!fs::is_directory(day.parent_path(), ec)) fs::create_directory(day.parent_path());
  journal.append(day, message);
}

void wire_bufr(Desk& ws) {
  ws.FrmDisplayKashf.cmdBUFR.on(Event::Click, cmdBUFR_click);
  ws.FrmPol.Command6.on(Event::Click, Command6_click);
  ws.FrmBUFR.Command1.on(Event::Click, [](Desk& w) { w.hide(w.FrmBUFR); });
}

}  // namespace obsdesk
