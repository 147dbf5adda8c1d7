#include "coders/code_panel.h"

#include <algorithm>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "core/textnum.h"
#include "screens/desk.h"

namespace obsdesk {

namespace {

constexpr long kShapeGrey = 0xE0E0E0;

Control& box_of(FrmCode& p, std::string_view name) {
  Control* c = p.find(name);
  if (c == nullptr) throw std::logic_error("no box " + std::string(name) + " on the code panel");
  return *c;
}

// The store's table made ready: made when missing, columns added when an older
// table lacks them, its one row made when there is none.
void prepare_store(Database& db) {
  if (!db.has_table("COOD")) {
    create_cood_table(db);
    return;
  }
  const std::vector<std::string> have = db.table_columns("COOD");
  for (const PanelField& f : cood_fields()) {
    if (std::find(have.begin(), have.end(), f.column) != have.end()) continue;
    db.exec("ALTER TABLE COOD ADD COLUMN " + quote_name(f.column) + " TEXT");
    auto st = db.prepare("UPDATE COOD SET " + quote_name(f.column) + " = ?");
    st.bind(1, cood_blank(f.column));
    st.run();
  }
  auto count = db.prepare("SELECT count(*) FROM COOD");
  count.step();
  if (count.integer(0) == 0) {
    std::string names, marks;
    for (const PanelField& f : cood_fields()) {
      names += (names.empty() ? "" : ",") + quote_name(f.column);
      marks += marks.empty() ? "?" : ",?";
    }
    auto ins = db.prepare("INSERT INTO COOD (" + names + ") VALUES (" + marks + ")");
    int i = 1;
    for (const PanelField& f : cood_fields()) ins.bind(i++, cood_blank(f.column));
    ins.run();
  }
}

// The store's database, opened and made ready once for its path and then kept:
// the panel is written after every event that changes it.
Database& open_store(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  const auto path = resolve_bank_path(ws.bank_root(), ws.FrmMain.txtpathnamebank1.text);
  if (!p.store || p.store_path != path) {
    p.store.reset();
    auto db = std::make_shared<Database>(path, Database::Mode::ReadWrite);
    // The row follows every change of the panel and is only the panel as last
    // left: its writes need not wait for the disk. The next save of a report
    // flushes the same log to the disk with them.
    db->commit_without_waiting();
    prepare_store(*db);
    p.store = std::move(db);
    p.store_path = path;
    p.stored.clear();
  }
  return *p.store;
}

bool has_store(Desk& ws) { return !ws.FrmMain.txtpathnamebank1.text.empty(); }

void read_store(Desk& ws) {
  if (!has_store(ws)) return;
  std::vector<std::pair<Control*, std::string>> values;
  {
    Database& db = open_store(ws);
    std::string names;
    for (const PanelField& f : cood_fields()) names += (names.empty() ? "" : ",") + quote_name(f.column);
    auto st = db.prepare("SELECT " + names + " FROM COOD ORDER BY rowid LIMIT 1");
    if (!st.step()) return;
    int i = 0;
    for (const PanelField& f : cood_fields()) {
      // A box already written (a picker may drop a group in before the panel
      // was ever loaded) keeps its group; the store fills the untouched ones.
      Control& box = box_of(ws.FrmCode, f.box);
      if (!st.is_null(i) && box.text == cood_blank(f.column)) values.emplace_back(&box, st.text(i));
      ++i;
    }
  }
  for (auto& [box, text] : values) ws.set(*box, std::move(text));
}

void FrmCode_load(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  try {
    read_store(ws);
  } catch (const BankError& e) {
    ws.FrmCode.store.reset();  // opened afresh at the next use
    ws.error(e.what());  // the panel stays as designed; nothing is lost
  }
  // The two SPECI boxes start with the METAR values.
  ws.set(p.Text28, p.Text1.text);
  ws.set(p.Text27, p.Text2.text);
}

void SSTab1_change(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  for (Control* s : Controls{&p.Shape1, &p.Shape2, &p.Shape5}) s->back_color = kShapeGrey;
}

void TXTSCDATA_change(Desk& ws) {
  ws.set(ws.FrmCode.TXTTEDAD, std::to_string(len(ws.FrmCode.TXTSCDATA.text)));
}

void Text77_change(Desk& ws) {
  if (auto wind = derived_wind(ws.FrmCode.Text77.text)) ws.set(ws.FrmCode.Text34, *wind);
}

void Back_click(Desk& ws) {
  save_code_panel(ws);
  ws.hide(ws.FrmCode);
  ws.show(ws.FrmKashf);
}

void Command5_click(Desk& ws) {
  load_code_panel(ws);
  ws.show(ws.FrmCode);
}

}  // namespace

void load_code_panel(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  if (p.loaded) return;
  p.loaded = true;
  FrmCode_load(ws);
}

void save_code_panel(Desk& ws) {
  if (!has_store(ws)) return;
  try {
    Database& db = open_store(ws);
    static const std::string update = [] {
      std::string sets;
      for (const PanelField& f : cood_fields()) sets += (sets.empty() ? "" : ", ") + quote_name(f.column) + " = ?";
      return "UPDATE COOD SET " + sets + " WHERE rowid = (SELECT min(rowid) FROM COOD)";
    }();
    std::vector<std::string> row;
    for (const PanelField& f : cood_fields()) row.push_back(box_of(ws.FrmCode, f.box).text);
    if (row == ws.FrmCode.stored) return;
    auto st = db.prepare(update);
    int i = 1;
    for (const std::string& v : row) st.bind(i++, v);
    st.run();
    ws.FrmCode.stored = std::move(row);
  } catch (const BankError& e) {
    ws.FrmCode.store.reset();  // opened afresh at the next use
    ws.error(e.what());
  }
}

std::optional<std::string> derived_wind(std::string_view nddff) {
  if (nddff == "     ") return std::nullopt;
  const std::string dd = mid(nddff, 2, 2);
  if (dd == "99") return "00000";
  return pad_left(num(val(dd) * 10) + mid(nddff, 4, 2), 5);
}

namespace {

// The store follows the panel: after any event that changed a stored box, the
// boxes are written once, so that the COOD row is the panel as last left,
// cleared boxes included.
void panel_changed(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  load_code_panel(ws);  // a group dropped in loads the panel, as any reference to it does
  if (p.store_pending) return;
  p.store_pending = true;
  ws.post([](Desk& w) {
    w.FrmCode.store_pending = false;
    save_code_panel(w);
  });
}

}  // namespace

void wire_code_panel(Desk& ws) {
  FrmCode& p = ws.FrmCode;
  p.on(ScreenEvent::Load, FrmCode_load);
  p.SSTab1.on(Event::Change, SSTab1_change);
  p.TXTSCDATA.on(Event::Change, TXTSCDATA_change);
  for (Control* back : Controls{&p.Command1, &p.Command2, &p.Command3}) back->on(Event::Click, Back_click);
  // Mirror: a change in the METAR frame shows at once in the SPECI frame; the
  // hour is not mirrored, the SPECI coder writes it itself.
  std::vector<std::pair<Control*, Control*>> mirror;
  for (const PanelMirror& r : panel_mirrors())
    if (r.column != "UTC") mirror.emplace_back(&box_of(p, r.metar_box), &box_of(p, r.speci_box));
  for (const PanelField& f : cood_fields()) {
    Control& box = box_of(p, f.box);
    Control* twin = nullptr;
    for (const auto& [from, to] : mirror)
      if (from == &box) twin = to;
    const bool wind = &box == &p.Text77;
    box.on(Event::Change, [&box, twin, wind](Desk& w) {
      if (twin != nullptr) w.set(*twin, box.text);
      if (wind) Text77_change(w);
      panel_changed(w);
    });
  }
  ws.FrmKashf.Command5.on(Event::Click, Command5_click);
}

}  // namespace obsdesk
