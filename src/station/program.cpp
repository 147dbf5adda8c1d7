#include "station/program.h"

#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/journal.h"
#include "bank/sqlite.h"
#include "archive/past_hours.h"
#include "core/textnum.h"
#include "station/workstation.h"
#include "screens/entry.h"

namespace obsdesk {

namespace {

const char* kCheckData = "     مــقدار داده را چــك نمـائيـــد";
constexpr int kRun = 4;

std::string prog(Desk& ws) { return trim(ws.FrmMain.LabName.text); }

// The chooser's file name without the drive: below the bank root, or from its
// fourth character on when it carries a drive letter.
std::string below_drive(Desk& ws, std::string name) {
  if (name.rfind(ws.Derive, 0) == 0) name = name.substr(ws.Derive.size());
  else if (name.size() > 3 && name[1] == ':' && (name[2] == '\\' || name[2] == '/')) name = mid(name, 4);
  for (char& c : name)
    if (c == '/') c = '\\';
  return name;
}

void FrmMain_load(Desk& ws) {
  FrmMain& m = ws.FrmMain;
  open_control_databases(ws);
  // No display modes to read on this platform: the size is the design size.
  ws.set(m.TxtResolution, "800 * 600");
  m.Frame3.back_color = parse_colour(m.TxtBackColor.text);
}

// Every activation: the databases again, the Rain path, the Station table, the
// colours, the station row chosen by number, and the heading of the two screens.
void FrmMain_activate(Desk& ws) {
  FrmMain& m = ws.FrmMain;
  open_control_databases(ws);
  ws.set(m.txtpathnamebank3, left(m.txtpathnamebank1.text, 24) + "Rain.mdb");
  DataControl& station = ws.FrmOption.Station;
  station.open(ws, resolve_bank_path(ws.bank_root(), m.txtpathnamebank2.text), "Station");
  apply_colours(ws);
  station.move_first(ws);
  const double id = val(m.Text1.text);
  if (!m.Text1.text.empty() && id != 0) {
    for (long step = 1; step < static_cast<long>(id) && step < 1000; ++step) {
      station.move_next(ws);
      if (station.rs.eof()) {
        ws.message("No Record Found", "Message");
        station.move_previous(ws);
      }
    }
  }
  const std::string heading = station_heading(ws);
  ws.set(ws.FrmKashf.Text44, heading);
  ws.set(ws.FrmDisplayKashf.Text44, heading);
}

// The ID: at most three digits. The row takes effect at the next activation.
void FrmMain_Text1_change(Desk& ws) {
  TextBox& t = ws.FrmMain.Text1;
  bool good = len(t.text) <= 3;
  for (std::size_t i = 1; good && i <= len(t.text); ++i) good = is_digit(char_at(t.text, i));
  if (!good) {
    ws.error(kCheckData);
    ws.set(t, "");
    ws.focus(t);
    return;
  }
  Recordset& rs = ws.FrmMain.ID.rs;
  if (rs.is_open() && !rs.eof() && !rs.bof() && rs.get("ID") != t.text) {
    rs.edit();
    rs.set("ID", t.text);
    rs.update();
  }
}

void hide_id(Desk& ws) {
  ws.FrmMain.Frame1.visible = false;
  ws.FrmMain.Text1.visible = false;
}

void through_wait_screen(Desk& ws, int code) {
  ws.next_screen = code;
  ws.show(ws.FrmEntezar);
}

void Command2_click(Desk& ws) {  // "Run"
  apply_colours(ws);
  hide_id(ws);
  ws.set(ws.FrmMain.txtutcpast, ws.FrmMain.txtutcpastb.text);
  through_wait_screen(ws, kRun);
}

void cmdOpen_click(Desk& ws) {
  FrmMain& m = ws.FrmMain;
  const std::string chosen = below_drive(ws, m.CommonDialog1.text);
  if (m.CommonDialog1.text.empty()) return;  // the chooser was cancelled
  const char* column = nullptr;
  if (m.Option1.value) {
    ws.set(m.txtpathnamebank1, chosen);
    ws.set(m.txtpathnamebank3, left(chosen, 24) + "Rain.mdb");
    column = "TXTPathNameBank1";
  } else if (m.Option2.value) {
    ws.set(m.txtpathnamebank2, chosen);
    column = "TXTPathNameBank2";
  }
  Recordset& rs = m.IDPaths.rs;
  if (column != nullptr && rs.is_open() && !rs.eof() && !rs.bof()) {
    rs.edit();
    rs.set(column, chosen);
    rs.update();
  }
  m.Frame1.visible = false;
}

// The colour chooser leaves the colour it returns in CommonDialog1 as a decimal
// colour number (empty: cancelled). The colour is kept in TxtBackColor and its
// table, so that it comes back at the next start, and goes at once to every frame
// of the start screen, the entry screen and the browser.
void LabColor_click(Desk& ws) {
  FrmMain& m = ws.FrmMain;
  const std::string chosen = trim(m.CommonDialog1.text);
  if (chosen.empty()) return;
  ws.set(m.TxtBackColor, std::to_string(parse_colour(chosen)));
  Recordset& rs = m.BackColor.rs;
  try {
    if (rs.is_open() && !rs.eof() && !rs.bof()) {
      rs.edit();
      rs.set("N_BackColor", m.TxtBackColor.text);
      rs.update();
    }
  } catch (const std::exception& e) {
    rs.cancel_update();
    ws.error(e.what());
  }
  apply_colours(ws);
}

}  // namespace

void open_control_databases(Desk& ws) {
  FrmMain& m = ws.FrmMain;
  const std::string p = prog(ws);
  struct Db {
    DataControl& control;
    std::string path;
    const char* table;
    bool flushed_by_save;  // written at every confirmation and save, which flushes the bank
  };
  const Db dbs[] = {{m.SelectOstan, select_ostan_path(p), "NameOstan", false},
                    {m.BackColor, back_color_path(p), "N_BackColor", false},
                    {m.IDPaths, id_path(p), "ID", false},
                    {m.PAST, past_path(p), "Past", true},
                    {m.ID, id_row_path(p), "ID", false}};
  for (const Db& db : dbs) {
    try {
      db.control.open(ws, resolve_bank_path(ws.bank_root(), db.path), db.table);
      if (db.flushed_by_save) db.control.rs.commit_without_waiting();
    } catch (const std::exception& e) {
      ws.error(e.what());
    }
  }
}

long parse_colour(const std::string& text) {
  const std::string t = trim(text);
  if (t.empty()) return 0xC0C0C0;
  return int_val(t);
}

void apply_colours(Desk& ws) {
  const long colour = parse_colour(ws.FrmMain.TxtBackColor.text);
  for (Screen* s : std::initializer_list<Screen*>{&ws.FrmMain, &ws.FrmKashf,
                    &ws.FrmDisplayKashf})
    for (Control* c : s->controls())
      if (c->kind == Kind::Frame) c->back_color = colour;
}

void open_next_screen(Desk& ws, int code) {
  switch (code) {
    case 1: open_past_hours_editor(ws); break;
    case 2: ws.show(ws.FrmOption); break;
    case kRun:
      ws.show(ws.FrmDisplayKashf);
      ws.hide(ws.FrmMain);
      break;
    case 10: ws.FrmMain.Frame1.visible = true; break;
    case 16: ws.show(ws.FrmHelp); break;
    case 44: ws.show(ws.FrmKashf); break;
    default: break;  // 3, 5, 6, 7, 8, 9, 15, 19 and any other: nothing
  }
}

namespace {

std::string two_figures(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

// The time of the start as a file-name stamp, YYYYMMDD-HHMM.
std::string stamp(Desk& ws) {
  const DateTime t = ws.now();
  return std::to_string(t.year) + two_figures(t.month) + two_figures(t.day) + "-" + two_figures(t.hour) +
         two_figures(t.minute);
}

void tell_bank_check(Desk& ws, const BankCheck& check) {
  if (!check.made.empty()) {
    std::string text = "The bank lacked what the program needs; made anew, empty:";
    for (const std::string& m : check.made) text += "\n" + m;
    ws.message(text, "Bank");
  }
  for (const BankCheck::Damage& d : check.damaged) {
    ws.damaged_databases.push_back(d.file);
    std::string text = "The database " + d.file.string() + " is damaged (" + d.reason + "). It is left as it is";
    text += d.copy.empty() ? "" : ", copied to " + d.copy.string() + ",";
    text += " and nothing is written into it. Restore it from a backup, or move it away and start the program "
            "again to have an empty one made.";
    ws.message(text, "Bank");
  }
}

// A save cut off by a crash is finished, or a confirmation never saved taken
// back, before anything else is written.
void finish_interrupted_saves(Desk& ws) {
  const std::string& path = ws.FrmMain.txtpathnamebank1.text;
  if (trim(path).empty()) return;
  const auto file = resolve_bank_path(ws.bank_root(), path);
  std::error_code ec;
  if (!std::filesystem::is_regular_file(file, ec)) return;
  for (const auto& d : ws.damaged_databases)
    if (std::filesystem::equivalent(file, d, ec)) return;
  try {
    Database db(file, Database::Mode::ReadWrite);
    const Recovery r = finish_pending(db, ws.bank_root(), ws.file_seam, true);
    if (r.redone > 0)
      ws.message("A save cut off at the last run was finished: its archive lines and bulletins are whole.", "Bank");
    if (r.undone > 0)
      ws.message("A report confirmed but never saved at the last run was taken back from the archive files.", "Bank");
  } catch (const std::exception& e) {
    ws.error(e.what());
  }
}

}  // namespace

void start_program(Desk& ws) {
  namespace fs = std::filesystem;
  const fs::path& root = ws.bank_root();
  std::error_code ec;
  fs::create_directories(root, ec);
  if (ec) throw BankError("cannot create the bank root " + root.string() + ": " + ec.message());
  std::string reason;
  auto lock = BankLock::acquire(root, &reason);
  if (!lock) {
    // Only a second running copy is that; any other reason is told as it is.
    ws.message(reason.empty() ? std::string("Program Already Runned")
                              : "The bank folder " + root.string() + " cannot be opened: " + reason +
                                    ". Check that it exists and that it can be read and written.");
    ws.end_program();
    return;
  }
  if (bank_is_new(root)) create_bank(root, ws.file_seam);
  else {
    try {
      tell_bank_check(ws, check_bank(root, prog(ws), stamp(ws)));
    } catch (const std::exception& e) {
      ws.error(e.what());  // told; the program goes on with what it has
    }
  }
  ws.hold_lock(std::move(lock));
  ws.show(ws.frmAbout);
  ws.click(ws.frmAbout.cmdOK);
  finish_interrupted_saves(ws);
}

void wire_program(Desk& ws) {
  FrmMain& m = ws.FrmMain;
  ws.frmAbout.cmdOK.on(Event::Click, [](Desk& w) {
    w.unload(w.frmAbout);
    if (!w.FrmMain.loaded) w.show(w.FrmMain);
  });
  m.on(ScreenEvent::Load, FrmMain_load);
  m.on(ScreenEvent::Activate, FrmMain_activate);
  m.on(ScreenEvent::Unload, [](Desk& w) { w.end_program(); });
  m.Text1.on(Event::Change, FrmMain_Text1_change);
  m.Command2.on(Event::Click, Command2_click);
  m.Command10.on(Event::Click, [](Desk& w) {
    hide_id(w);
    through_wait_screen(w, 2);
  });
  m.Command4.on(Event::Click, [](Desk& w) { open_past_hours_editor(w); });
  m.Command9.on(Event::Click, [](Desk& w) {
    hide_id(w);
    w.show(w.FrmHelp);
  });
  m.CmdEnd.on(Event::Click, [](Desk& w) { w.unload(w.FrmMain); });
  m.Command1.on(Event::Click, [](Desk& w) { w.FrmMain.ComboOstan.visible = !w.FrmMain.ComboOstan.visible; });
  m.Label2.on(Event::Click, [](Desk& w) { w.FrmMain.Text1.visible = !w.FrmMain.Text1.visible; });
  m.Label34.on(Event::DblClick, [](Desk& w) {
    w.FrmMain.Text1.visible = false;
    through_wait_screen(w, 10);
  });
  m.Label43.on(Event::Click, [](Desk& w) { w.show(w.frmAbout); });
  m.cmdOpen.on(Event::Click, cmdOpen_click);
  m.LabColor.on(Event::Click, LabColor_click);

  ws.FrmEntezar.on(ScreenEvent::Activate, [](Desk& w) {
    w.post([](Desk& w2) {
      w2.FrmEntezar.ProgressBar1.text = "1000";
      open_next_screen(w2, w2.next_screen);
      w2.unload(w2.FrmEntezar);
    });
  });
  ws.FrmERR.Command1.on(Event::Click, [](Desk& w) { w.hide(w.FrmERR); });
  ws.FrmHelp.Command1.on(Event::Click, [](Desk& w) {
    w.hide(w.FrmHelp);
    w.show(w.FrmMain);
  });
}

}  // namespace obsdesk
