#include "archive/save.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "archive/browser.h"
#include "archive/bufr_files.h"
#include "archive/bulletins.h"
#include "archive/text_archive.h"
#include "bank/journal.h"
#include "bank/sqlite.h"
#include "calendar/key_text.h"
#include "screens/record.h"
#include "archive/copy_out.h"
#include "core/textnum.h"
#include "screens/desk.h"
#include "screens/entry.h"
#include "calendar/calendar.h"

namespace obsdesk {

namespace {

namespace fs = std::filesystem;

constexpr const char* kNotSaved =
    "\nThe report was not saved and nothing of it was written: make room or mend the folder, then save again.";
constexpr const char* kSavedNotWritten =
    "\nThe report was saved, but not all of its files could be written; they are written at the next save "
    "or start.";

std::string two(long n) { return pad_left(std::to_string(n), 2); }
long number(const std::string& text) { return int_val(text); }

bool one_of(long v, std::initializer_list<long> set) {
  for (long s : set)
    if (v == s) return true;
  return false;
}

// ---- Confirmation, in the order ZAKHIREH runs it ---------------------------------

// Both leap flags by the Gregorian rule, the Persian year's too. The date repair
// that follows reads them, so they are set first.
void leap_flags(Desk& ws) {
  CalendarState& c = ws.calendar;
  c.GLeapThis = 0;
  c.SLeapA = 0;
  c.GLeapThis = gregorian_leap(int_val(ws.FrmKashf.TXTYEARmi.text)) ? 1 : 0;
  c.SLeapA = gregorian_leap(int_val(ws.FrmKashf.TXTYEARsh.text)) ? 1 : 0;
}

void put_date(Desk& ws, TextBox& day, TextBox& month, TextBox& year, const DateTexts& d) {
  ws.set(day, d.day);
  ws.set(month, d.month);
  ws.set(year, d.year);
}

// A date one day past its month's end (what the date boxes give on the last day
// of a month) becomes the first of the next, Gregorian first; the key text is
// then composed again, so the record's key and its date boxes agree.
void repair_dates(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  put_date(ws, k.TXTDAYmi, k.TXTMONTHMI, k.TXTYEARmi,
           repair_gregorian({k.TXTDAYmi.text, k.TXTMONTHMI.text, k.TXTYEARmi.text}, ws.calendar.GLeapThis == 1));
  put_date(ws, k.TXTDAYsh, k.TXTMONTHSH, k.TXTYEARsh,
           repair_persian({k.TXTDAYsh.text, k.TXTMONTHSH.text, k.TXTYEARsh.text}, ws.calendar.SLeapA == 1));
  rebuild_key_text(ws);
}

// The past-hours row takes this report's temperature and QFE at its main hour
// and the working copies at the others, so that the later reports of the day
// find this hour's readings for their 12- and 24-hour figures; the rain comes
// from the working copies alone.
void roll_past_hours(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmMain& m = ws.FrmMain;
  const double hour = val(k.Text1.text);
  const int index = hour == static_cast<int>(hour) ? main_hour_index(static_cast<int>(hour)) : -1;
  if (index < 0) return;
  for (std::size_t i = 0; i < 8; ++i) {
    const bool now = static_cast<int>(i) == index;
    ws.set(*m.TB[i], now ? k.Text27.text : m.T[i]->text);
    ws.set(*m.qfeB[i], now ? k.Text18.text : m.qfe[i]->text);
    ws.set(*m.rainB[i], m.rain[i]->text);
  }
}

// The past-hours row as its bound boxes now show it, kept in PAST.mdb.
void keep_past_row(Desk& ws) {
  DataControl& past = ws.FrmMain.PAST;
  Recordset& rs = past.rs;
  if (!rs.is_open() || rs.eof() || rs.bof()) return;
  rs.edit();
  past.update();
}

// The SCDATA lines by station kind, report kind and hour, listed in the journal
// in the order they are written, so that a save cut short is finished in that
// same order.
void scdata_lines(Desk& ws, SaveJournal& journal) {
  FrmKashf& k = ws.FrmKashf;
  const std::string folder = station_folder(ws);
  const std::string nnn = station_nnn(ws.FrmOption.NUMCOD.text);
  const ScdataNames n = scdata_names(folder, nnn, key_text(k));
  ws.set(k.txtFileNameDAY, n.day);
  ws.set(k.txtFileNamemonth, n.month);
  ws.set(k.txtfilenametotal, n.total);
  ws.set(k.txtFileNamemonthG, n.monthG);
  ws.set(k.TXTFILENAMETOTALG, n.totalG);

  const std::string s = ws.FrmCode.TXTSCDATA.text;
  const std::string g = ws.FrmCode.TXTgolbad.text;
  const std::string kind = k.Combo5.text;
  auto to = [&](const std::string& name, const std::string& line) {
    journal.append(bank_file(ws, name), line_bytes(line));
  };

  if (twelve_hour_station(ws) && kind == kSpeci) return;
  if (twelve_hour_night(ws)) {
    // No daily record at these hours of a 12-hour station: no IT line.
    to(n.monthG, g);
    to(n.totalG, g);
    to(n.total, s);
    to(n.month, s);
    ws.set(ws.FrmMain.txtutcpastb, k.Text1.text);
    return;
  }
  if (!is_synop_kind(kind)) return;
  ws.set(ws.FrmMain.txtutcpastb, k.Text1.text);
  to(n.monthG, g);
  to(n.totalG, g);
  const ItDay day = it_day(k.TXTYEARmi.text, k.TXTMONTHMI.text, k.TXTDAYmi.text, val(k.Text1.text));
  to(it_file_name(folder, nnn, day), it_line(s));
  to(n.month, s);
  to(n.total, s);
}

// The confirmation's lines are written at once, but recorded first as waiting
// for their row: a crash before the row is saved takes them back at the next
// start, and the save that commits the row makes them its own. A write error
// takes back every line of this confirmation.
void append_scdata(Desk& ws) {
  SaveJournal journal(ws.file_seam);
  scdata_lines(ws, journal);
  if (journal.empty()) return;
  Database& db = ws.FrmDisplayKashf.KASHF.rs.database();
  Transaction t(db);
  const std::int64_t intent = record_provisional(db, ws.bank_root(), journal);
  announce(ws.file_seam, FileCall::Commit, db.file());
  t.commit();
  try {
    journal.write();
  } catch (...) {
    journal.undo();
    drop_intent(db, intent);
    throw;
  }
}

// The boxes copied by name from the entry screen into the browser.
const std::vector<std::string>& copied_by_name() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> v = {"txt1"};
    auto range = [&v](int from, int to) {
      for (int i = from; i <= to; ++i) v.push_back("Text" + std::to_string(i));
    };
    range(1, 40);
    range(44, 44);
    range(48, 51);
    range(53, 53);
    range(59, 60);
    range(63, 74);
    for (const char* n : {"TxtVM", "Txttond", "Txtmaxwind", "Txttimesun", "txtt12", "txtmin", "txtSYN", "TXTMET",
                          "TXTSPE", "txtpast6", "CMbMAX", "CMbMIN", "Txt_NLC", "TXT_QNT", "TXTYEARmi", "TXTMONTHMI",
                          "TXTDAYmi", "TXTYEARsh", "TXTMONTHSH", "TXTDAYsh"})
      v.emplace_back(n);
    return v;
  }();
  return names;
}

Control* exact(Screen& s, const std::string& name) {
  Control* c = s.find(name);
  return c != nullptr && c->name == name ? c : nullptr;
}

// Every value into the browser's row, since the record is composed from the
// browser's boxes and not the entry screen's; the lists go to their columns'
// boxes, the key text is composed anew, and the Combo3 type stands last in
// Text42.
void copy_into_browser(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  ws.show(b);
  for (const std::string& name : copied_by_name()) {
    Control* from = exact(k, name);
    Control* to = exact(b, name);
    if (from != nullptr && to != nullptr) ws.set(*to, from->text);
  }
  ws.set(b.TXTYYMMDDTT, ws.FrmCode.TXTYYGG.text);
  ws.set(b.Text45, k.Combo1.text);
  ws.set(b.Text43, k.Combo2.text);
  ws.set(b.Text46, k.Combo4.text);
  ws.set(b.Text47, k.Combo6.text);
  ws.set(b.Text54, k.Combo9.text);
  ws.set(b.TXTSEL, k.Combo5.text);
  ws.set(b.TXTNAM, k.Combo7.text);
  ws.set(b.TXTSCDATA, ws.FrmCode.TXTSCDATA.text);
  ws.set(b.TXTYYMMDDTT, key_text(k));
  ws.set(b.Text42, k.Combo3.text);
  if (len(b.Text20.text) == 4) ws.set(b.Text20, b.Text20.text + "0");  // "29.9" is kept as "29.90"
}

// Each value left-aligned in its stored width: the record is read back by
// column, so a short value must still fill its field. A value wider than its
// field stops the confirmation here, before the entry screen closes and with
// nothing of the record written; the boxes after it stay as they are.
void pad_browser(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  auto pad = [&](std::string_view name, int width) {
    Control* c = exact(b, std::string(name));
    if (c == nullptr || width <= 0) return;
    const std::size_t n = len(c->text);
    const auto w = static_cast<std::size_t>(width);
    if (n > w)
      throw std::runtime_error("Invalid procedure call or argument: " + std::string(name) + " holds " +
                               std::to_string(n) + " characters, its field " + std::to_string(w));
    if (n != w) ws.set(*c, pad_right(c->text, w));
  };
  for (const RecordField& f : kashf_record_fields()) pad(f.box, f.width);
  pad("Text9", 4);  // the second layer's height is stored padded, though not in the record
}

// The entry screen closes and the code panel goes back to blank groups, so
// the next report starts from nothing this one left behind.
void close_entry(Desk& ws) {
  ws.unload(ws.FrmKashf);
  FrmCode& c = ws.FrmCode;
  for (Control* box : Controls{&c.TXTUTC, &c.TXTYYGG, &c.TXTAUTO, &c.txtdddff, &c.TXTDNDX, &c.TXTVVVv, &c.TXTVXVXVXDV,
                               &c.Text1, &c.Text2, &c.Text3, &c.Text4, &c.Text5, &c.Text47, &c.TXTSKC, &c.Text55,
                               &c.Text56, &c.Text57, &c.Text58, &c.Text59, &c.Text60, &c.Text61})
    ws.set(*box, "");
  ws.set(c.Text75, "  ");
  ws.set(c.Text103, "   ");
  for (Control* box :
       Controls{&c.Text41, &c.Text42, &c.Text43, &c.Text44, &c.Text45, &c.Text46, &c.Text76, &c.Text77, &c.Text78,
                &c.Text79, &c.Text80, &c.Text81, &c.Text82, &c.Text83, &c.Text84, &c.Text85, &c.Text86, &c.Text87,
                &c.Text89, &c.Text90, &c.Text91, &c.Text92, &c.Text93, &c.Text94, &c.Text95, &c.Text96, &c.Text97,
                &c.Text98, &c.Text99, &c.Text100, &c.Text101, &c.Text102, &c.Text104, &c.Text105})
    ws.set(*box, "     ");
}

// ---- Save --------------------------------------------------------------------------

// The month-end rewrite of last month's file, at every 06 UTC report of January:
// the file gains one line end. A month with no file (a station's first
// January) has nothing to close and is passed over.
void month_end(Desk& ws, SaveJournal& journal, const std::string& prefix_dir, const std::string& prefix) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  if (!b.txt1.text.empty() || val(b.Text1.text) != 6 || val(b.TXTMONTHMI.text) != 1) return;
  const std::string name = station_folder(ws) + prefix_dir + prefix + station_nnn(ws.FrmOption.NUMCOD.text) +
                           previous_month_tag(b.TXTYYMMDDTT.text) + ".dat";
  const fs::path file = bank_file(ws, name);
  std::error_code ec;
  if (!fs::exists(file, ec)) return;
  std::ifstream in(file, std::ios::binary);
  if (!in) file_error(file, EACCES);
  std::ostringstream whole;
  whole << in.rdbuf();
  journal.replace(file, whole.str() + "\r\n");
  ws.set(b.TXTmonth, from_cp1256(whole.str()));
}

// The BUFR message goes with the SYNOP bulletin: where SYNOP.DAT is written, so
// is SYNOP.BUFR, in the same journal. A message that cannot be made is told and
// the save goes on without it: the report must not be lost over its BUFR copy.
// True when the message is listed.
bool add_bufr(Desk& ws, SaveJournal& journal, const std::vector<Bulletin>& bulletins) {
  const bool synop =
      std::any_of(bulletins.begin(), bulletins.end(), [](const Bulletin& x) { return x.file == "SYNOP.DAT"; });
  if (!synop || trim(ws.FrmDisplayKashf.txtSYN.text).empty()) return false;
  try {
    add_synop_bufr(ws, journal);
    return true;
  } catch (const std::exception& e) {
    ws.message(e.what());
    return false;
  }
}

std::string browser_value(Desk& ws, std::string_view box) {
  Control* c = ws.FrmDisplayKashf.find(box);
  return c != nullptr ? c->text : std::string();
}

// The open row and the save's intent in one transaction; on failure neither is
// kept and the row stays open for another save.
Commit commit_row(Desk& ws, const SaveJournal& journal) {
  Recordset& rs = ws.FrmDisplayKashf.KASHF.rs;
  Database& db = rs.database();
  try {
    Transaction t(db);
    ws.FrmDisplayKashf.KASHF.update();
    const Commit intent = record_committed(db, ws.bank_root(), journal);
    announce(ws.file_seam, FileCall::Commit, db.file());
    t.commit();
    return intent;
  } catch (...) {
    if (rs.edit_mode() == Recordset::EditMode::None) rs.add_new();
    throw;
  }
}

// A write of the save failed: every file goes back to its length before the
// save, the row is taken out again and stays open, and the observer is told.
// When the files cannot be put back the row stays saved and its intent is
// finished before the next save, or at the next start.
// Returns false when the row stays saved.
bool take_back(Desk& ws, const SaveJournal& journal, const Commit& intent, const std::exception& cause) {
  Recordset& rs = ws.FrmDisplayKashf.KASHF.rs;
  Database& db = rs.database();
  try {
    journal.undo();
    Transaction t(db);
    auto row = db.prepare("DELETE FROM KASHF WHERE rowid = ?");
    row.bind(1, rs.last_modified());
    row.run();
    withdraw_intent(db, intent);
    t.commit();
    rs.add_new();
    ws.message(std::string(cause.what()) + kNotSaved);
    return true;
  } catch (const std::exception& e) {
    ws.message(std::string(cause.what()) + kSavedNotWritten + "\n" + e.what());
    return false;
  }
}

}  // namespace

DateTexts repair_gregorian(const DateTexts& d, bool leap) {
  const long day = number(d.day), month = number(d.month);
  const auto next = [&] { return DateTexts{"01", two(month + 1), d.year}; };
  if (month == 2 && !leap && day == 29) return {"01", "03", d.year};
  if (month == 2 && leap && day == 30) return {"01", "03", d.year};
  if (one_of(month, {1, 3, 5, 7, 8, 10}) && day == 32) return next();
  if (month == 12 && day == 32) return {"01", "01", num(val(d.year) + 1)};
  if (one_of(month, {4, 6, 9, 11}) && day == 31) return next();
  return d;
}

DateTexts repair_persian(const DateTexts& d, bool leap) {
  const long day = number(d.day), month = number(d.month);
  if (month < 7 && day == 32) return {"01", two(month + 1), d.year};
  if (month > 6 && month != 12 && day == 31) return {"01", two(month + 1), d.year};
  if (month == 12 && !leap && day == 30) return {"01", "01", num(val(d.year) + 1)};
  if (month == 12 && day == 31) return {"01", "01", num(val(d.year) + 1)};
  return d;
}

void ZAKHIREH_click(Desk& ws) {
  leap_flags(ws);
  repair_dates(ws);
  ws.SYNOP_coded = 0;
  ws.METAR_coded = 0;
  try {
    if (ws.FrmKashf.txt1.text.empty()) roll_past_hours(ws);
    append_scdata(ws);
  } catch (...) {
    keep_past_row(ws);  // what was rolled forward stays, as the lines written do
    throw;
  }
  keep_past_row(ws);
  copy_into_browser(ws);
  pad_browser(ws);
  close_entry(ws);
}

void save_click(Desk& ws) {
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  Recordset& rs = b.KASHF.rs;
  FileSeam* seam = ws.file_seam;
  const fs::path& root = ws.bank_root();
  try {
    Database& db = rs.database();
    // A save whose files were left unwritten is finished before the next.
    if (ws.files_waiting) {
      finish_pending(db, root, seam, false);
      ws.files_waiting = false;
    }

    // Everything the save writes, listed before anything is written.
    SaveJournal journal(seam);
    ws.set(b.LabBUFR, "No BUFR message");
    const auto bulletins = bulletins_for(b.TXTSEL.text, bulletin_fields(ws));
    add_bulletins(ws, journal, bulletins);
    const bool bufr = add_bufr(ws, journal, bulletins);
    month_end(ws, journal, "\\TEXT\\SCDATA\\", "S");
    ws.set(b.txtkashf, kashf_record([&](std::string_view box) { return browser_value(ws, box); }));
    journal.append(bank_file(ws, b.TXTFILENAMEKASHFM.text), line_bytes(b.txtkashf.text));
    journal.append(bank_file(ws, b.TXTFILENAMEKASHFT.text), line_bytes(b.txtkashf.text));
    month_end(ws, journal, "\\TEXT\\KASHF\\", "KASHF");

    // The row and the intent commit together, and reach the disk with all that
    // was written before them in the save's one flush.
    const Commit intent = commit_row(ws, journal);
    bool written = true;
    try {
      flush_files(root, seam);
      journal.write();
    } catch (const std::exception& e) {
      if (take_back(ws, journal, intent, e)) return;
      written = false;  // told; the row stands saved and its files wait
    }
    // Past the point of no return the row stands saved: a rename that fails is
    // told, and made again before the next save or at the next start.
    std::string unfinished;
    if (written) {
      try {
        journal.put_in_place();
      } catch (const std::exception& e) {
        unfinished = e.what();
      }
    }
    if (bufr && written && unfinished.empty()) ws.set(b.LabBUFR, "BUFR message written");

    b.KASHF.move_last(ws);
    set_browsing(ws, true);
    ws.hide(b);
    open_copy_out(ws);
    keep_past_row(ws);
    ws.FrmMain.PAST.refresh(ws);
    ws.files_waiting = !written || !unfinished.empty();
    if (!unfinished.empty()) ws.message(unfinished + kSavedNotWritten);
  } catch (const UsageError&) {
    throw;
  } catch (const std::exception& e) {
    ws.message(e.what());
  }
}

void wire_save(Desk& ws) {
  ws.FrmKashf.ZAKHIREH.on(Event::Click, ZAKHIREH_click);
  ws.FrmDisplayKashf.save.on(Event::Click, save_click);
}

}  // namespace obsdesk
