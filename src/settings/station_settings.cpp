#include "settings/station_settings.h"

#include <filesystem>

#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "settings/select_station.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

void lock_boxes(FrmOption& o, bool locked) {
  for (Control* c : o.entry_boxes()) c->locked = locked;
}

void enable_commands(FrmOption& o, bool enabled) {
  for (Control* c : o.commands()) c->enabled = enabled;
}

// Writes the boxes the observer changed into the row being added or edited. A
// box that still shows what the row holds is not written, so of the two boxes
// that share the column txtmaxm5 the one that was changed is kept.
void write_changed(FrmOption& o) {
  Recordset& rs = o.Station.rs;
  std::vector<std::pair<std::string, std::string>> changes;
  for (const auto& [box, column] : o.Station.bindings())
    if (box->text != rs.get(column)) changes.emplace_back(column, box->text);
  if (rs.edit_mode() == Recordset::EditMode::None) rs.edit();
  for (auto& [column, text] : changes) rs.set(column, std::move(text));
}

// The row added by "New" or opened by "Edit" goes to the table, as the data
// control writes a changed row when it is left. A failure of the table is told
// in a message box and the row stays as it was.
bool commit(Desk& ws) {
  FrmOption& o = ws.FrmOption;
  if (!o.adding && !o.editing) return true;
  Recordset& rs = o.Station.rs;
  try {
    write_changed(o);
    rs.update();
    o.adding = o.editing = false;
    return true;
  } catch (const std::exception& e) {
    rs.cancel_update();
    o.adding = o.editing = false;
    ws.message(e.what());
    o.Station.show(ws);
    return false;
  }
}

// Runs a command with the menu closed; a failure of the table goes to a message box.
template <typename F>
void command(Desk& ws, F&& f) {
  FrmOption& o = ws.FrmOption;
  o.Frame4.visible = false;
  o.Text21.visible = false;
  try {
    f(ws, o);
  } catch (const std::exception& e) {
    ws.message(e.what());
  }
}

void FrmOption_load(Desk& ws) {
  FrmOption& o = ws.FrmOption;
  lock_boxes(o, true);
  enable_commands(o, true);
  o.adding = o.editing = false;
  o.OptPnegar.value = o.txtPnegar.text == "1";
  o.OptPsang.value = o.txtPsang.text == "1";
}

void nnew_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption& o) {
    if (!commit(w)) return;
    o.Station.add_new(w);
    o.adding = true;
    lock_boxes(o, false);
    enable_commands(o, false);
    o.savee.enabled = true;
    w.focus(o.Text1);
  });
}

void savee_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption& o) {
    commit(w);
    o.Station.move_last(w);
    enable_commands(o, true);
    lock_boxes(o, true);
  });
}

void EDITT_click(Desk& ws) {
  command(ws, [](Desk&, FrmOption& o) {
    if (o.Station.rs.eof() || o.Station.rs.bof()) return;  // no row to open
    o.editing = true;
    lock_boxes(o, false);
  });
}

// A station stored with a four-letter code that has no folder in the bank yet
// gets its tree, and the bank path of the ID row points at its Kashf.mdb, so that
// a station set up here saves its first report without hands on the folders.
void give_new_station_its_bank(Desk& ws) {
  const std::string code = ws.FrmOption.TXTCOD.text;
  if (code.size() != 4) return;
  for (char c : code)
    if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'))) return;
  const std::string prog = trim(ws.FrmMain.LabName.text);
  std::error_code ec;
  if (std::filesystem::exists(resolve_bank_path(ws.bank_root(), prog + "\\BANK\\" + code), ec)) return;
  const std::string kashf = create_station_tree(ws.bank_root(), prog, code);
  Recordset& ids = ws.FrmMain.IDPaths.rs;
  if (ids.is_open() && !ids.eof() && !ids.bof()) {
    ids.edit();
    ids.set("TXTPathNameBank1", kashf);
    ids.update();
  }
  ws.set(ws.FrmMain.txtpathnamebank1, kashf);
}

// Every empty observer box gets the duty observer, so that the observer list of
// the entry screen never offers a blank line; the program then ends, and the
// profile comes into force at the next start. The message panel tells the
// observer so, and stays on the screen as the program ends.
void UPDATE_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption& o) {
    w.error(kRestartToApply);
    for (Control* box : Controls{&o.Text5, &o.Text6, &o.Text7, &o.Text8, &o.Text9, &o.Text10, &o.Text11, &o.Text12})
      if (box->text.empty()) w.set(*box, kDutyObserver);
    if (!o.adding) o.editing = !(o.Station.rs.eof() || o.Station.rs.bof());
    if (!commit(w)) return;
    lock_boxes(o, true);
    give_new_station_its_bank(w);
    w.end_program();
  });
}

void firstt_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption& o) {
    commit(w);
    o.Station.move_first(w);
  });
}

void LASTt_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption& o) {
    commit(w);
    o.Station.move_last(w);
  });
}

// One row on or back; past the end the place kept before the move comes back.
void step(Desk& ws, bool forward) {
  command(ws, [forward](Desk& w, FrmOption& o) {
    commit(w);
    Recordset& rs = o.Station.rs;
    const bool standing = !rs.eof() && !rs.bof();
    const std::int64_t kept = standing ? rs.bookmark() : 0;
    if (standing) {
      if (forward) rs.move_next();
      else rs.move_previous();
    }
    if (!standing || rs.eof() || rs.bof()) {
      w.message("No Record Found", "Message");
      if (standing) rs.go_to(kept);
    }
    o.Station.show(w);
  });
}

// The name chosen in the station picker is looked for anywhere in Sname; with
// no row found the place stays as it was.
void search_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption&) {
    commit(w);
    select_station(w, "", [](Desk& w2, const std::string& name) {
      if (name.empty()) return;
      try {
        Recordset& rs = w2.FrmOption.Station.rs;
        const std::string pattern = "*" + name + "*";
        if (rs.find_first("Sname", pattern) || rs.find_next("Sname", pattern)) w2.FrmOption.Station.show(w2);
      } catch (const std::exception& e) {
        w2.message(e.what());
      }
    });
  });
}

// The screen closes (it stays loaded: every rule reads the profile from it) and
// the start screen, active again, reads the station number anew.
void Closee_click(Desk& ws) {
  command(ws, [](Desk& w, FrmOption& o) {
    commit(w);
    lock_boxes(o, true);
    if (w.FrmMain.ID.rs.is_open()) w.FrmMain.ID.refresh(w);
    w.hide(o);
  });
}

}  // namespace

void wire_station_settings(Desk& ws) {
  FrmOption& o = ws.FrmOption;
  o.on(ScreenEvent::Load, FrmOption_load);
  o.Label45.on(Event::Click, [](Desk& w) { w.FrmOption.Frame4.visible = !w.FrmOption.Frame4.visible; });
  o.nnew.on(Event::Click, nnew_click);
  o.savee.on(Event::Click, savee_click);
  o.EDITT.on(Event::Click, EDITT_click);
  o.UPDATE.on(Event::Click, UPDATE_click);
  o.firstt.on(Event::Click, firstt_click);
  o.LASTt.on(Event::Click, LASTt_click);
  o.nextt.on(Event::Click, [](Desk& w) { step(w, true); });
  o.back.on(Event::Click, [](Desk& w) { step(w, false); });
  o.search.on(Event::Click, search_click);
  o.Closee.on(Event::Click, Closee_click);

  // The row number shows on a double click on the radiation factor.
  o.txttabesh.on(Event::DblClick, [](Desk& w) { w.FrmOption.Text21.visible = true; });

  // The barometer pair: one option writes "1" to its box and "0" to the other.
  o.OptPnegar.on(Event::Click, [](Desk& w) {
    w.set(w.FrmOption.txtPnegar, "1");
    w.set(w.FrmOption.txtPsang, "0");
  });
  o.OptPsang.on(Event::Click, [](Desk& w) {
    w.set(w.FrmOption.txtPsang, "1");
    w.set(w.FrmOption.txtPnegar, "0");
  });
  o.txtPnegar.on(Event::Change, [](Desk& w) { w.FrmOption.OptPnegar.value = w.FrmOption.txtPnegar.text == "1"; });
  o.txtPsang.on(Event::Change, [](Desk& w) { w.FrmOption.OptPsang.value = w.FrmOption.txtPsang.text == "1"; });

  const std::vector<Control*> walk = o.enter_walk();
  for (std::size_t i = 0; i + 1 < walk.size(); ++i) {
    Control* next = walk[i + 1];
    walk[i]->on(Event::KeyEnter, [next](Desk& w) { w.focus(*next); });
  }
}

}  // namespace obsdesk
