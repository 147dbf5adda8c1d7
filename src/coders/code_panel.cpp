#include "coders/code_panel.h"

#include <algorithm>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "core/textnum.h"
#include "core/workstation.h"

namespace obsdesk {

namespace {

constexpr long kShapeGrey = 0xE0E0E0;

// The METAR frame's boxes and their twins in the SPECI frame, by column.
struct MirrorRow {
  std::string_view column, metar_box, speci_box, speci_column;
};
constexpr MirrorRow kFrames[] = {
    {"UTC", "TXTUTC", "Text29", "UTC_SPECI"},
    {"CCCC", "TXTCCCC", "Text9", "CCCC_SPECI"},
    {"YYGGGGZ", "TXTYYGG", "Text10", "YYGGGGZ_SPECI"},
    {"AUTO", "TXTAUTO", "Text11", "AUTO_SPECI"},
    {"DDDFFGFMFM", "txtdddff", "Text12", "DDDFFGFMFM_SPECI"},
    {"DNDNVDXDX", "TXTDNDX", "Text13", "DNDNVDXDX_SPECI"},
    {"VVVV/COVOK", "TXTVVVv", "Text14", "VVVV/COVOK_SPECI"},
    {"VXVXVXDV", "TXTVXVXVXDV", "Text15", "VXVXVXDV_SPECI"},
    {"RDRDRD/VRVRVR", "Text5", "Text16", "RDRDRD/VRVRVR_SPECI"},
    {"W'W'1", "Text4", "Text17", "W'W'1_SPECI"},
    {"W'W'2", "Text47", "Text18", "W'W'2_SPECI"},
    {"SKC/NSC", "TXTSKC", "Text19", "SKC/NSC_SPECI"},
    {"VVHSHS", "Text55", "Text20", "VVHSHS_SPECI"},
    {"NNNHHH1", "Text56", "Text21", "NNNHHH1_SPECI"},
    {"NNNHHH2", "Text57", "Text22", "NNNHHH2_SPECI"},
    {"NNNHHH3", "Text58", "Text23", "NNNHHH3_SPECI"},
    {"NNNHHH4", "Text59", "Text25", "NNNHHH4_SPECI"},
    {"NNNHHH5", "Text60", "Text8", "NNNHHH5_SPECI"},
    {"TT/TDTD", "Text61", "Text24", "TT/TDTD_SPECI"},
    {"QPHPHPH", "Text3", "Text26", "QPHPHPH_SPECI"},
    {"QPHPHPH2", "Text30", "Text33", "QPHPHPH2_SPECI"},
    {"REW'W'", "Text2", "Text27", "REW'W'_SPECI"},
    {"WSRWYDRDR", "Text1", "Text28", "WSRWYDRDR_SPECI"},
    {"NLC", "Txt_NLC", "Text32", "NLC_SPECI"},
};

// The SYNOP frame, by column.
constexpr PanelField kSynopFrame[] = {
    {"Text75", "UTC_SYNOP"},      {"Text76", "IRIXHVV"},         {"Text77", "NDDFF"},
    {"Text78", "OOFFF"},          {"Text79", "1SNTTT"},          {"Text80", "2SNTDTDTD"},
    {"Text81", "3P0P0P0"},        {"Text82", "4PPPP"},           {"Text83", "5APPP"},
    {"Text84", "6RRRTR"},         {"Text85", "7WWW1W2"},         {"Text86", "8NHCLCMCH"},
    {"Text87", "9GGGG"},          {"Text88", "F32"},             {"Text89", "1SNTXTXTX"},
    {"Text90", "2SNTNTNTN"},      {"Text91", "3ESNTGTG"},        {"Text92", "4E'SSS"},
    {"Text93", "4A3HHH"},         {"Text94", "5EEEIE"},          {"Text95", "55SSS"},
    {"Text96", "J5F24F24F24F24"}, {"Text97", "7R24R24R24R24"},   {"Text98", "8NSCHSHS"},
    {"Text99", "8NSCHSHS1"},      {"Text100", "8NSCHSHS2"},      {"Text101", "8NSCHSHS3"},
    {"Text102", "9SNIWIWIW"},     {"Text103", "RH"},             {"Text104", "maxDDDFF"},
    {"Text105", "gustyDDDFF"},    {"Text41", "1snttt1"},         {"Text42", "1snttt2"},
    {"Text43", "1snttt3"},        {"Text44", "1snttt4"},         {"Text45", "1snttt5"},
    {"Text46", "1snttt6"},
};

bool is_synop_column(std::string_view column) {
  return std::any_of(std::begin(kSynopFrame), std::end(kSynopFrame),
                     [&](const PanelField& f) { return f.column == column; });
}

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
Database& open_store(Workstation& ws) {
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

bool has_store(Workstation& ws) { return !ws.FrmMain.txtpathnamebank1.text.empty(); }

void read_store(Workstation& ws) {
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

void FrmCode_load(Workstation& ws) {
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

void SSTab1_change(Workstation& ws) {
  FrmCode& p = ws.FrmCode;
  for (Control* s : Controls{&p.Shape1, &p.Shape2, &p.Shape5}) s->back_color = kShapeGrey;
}

void TXTSCDATA_change(Workstation& ws) {
  ws.set(ws.FrmCode.TXTTEDAD, std::to_string(len(ws.FrmCode.TXTSCDATA.text)));
}

void Text77_change(Workstation& ws) {
  if (auto wind = derived_wind(ws.FrmCode.Text77.text)) ws.set(ws.FrmCode.Text34, *wind);
}

void Back_click(Workstation& ws) {
  save_code_panel(ws);
  ws.hide(ws.FrmCode);
  ws.show(ws.FrmKashf);
}

void Command5_click(Workstation& ws) {
  load_code_panel(ws);
  ws.show(ws.FrmCode);
}

}  // namespace

const std::vector<PanelField>& cood_fields() {
  static const std::vector<PanelField> fields = [] {
    std::vector<PanelField> out;
    for (const MirrorRow& r : kFrames) out.push_back({r.metar_box, r.column});
    for (const MirrorRow& r : kFrames) out.push_back({r.speci_box, r.speci_column});
    for (const PanelField& f : kSynopFrame) out.push_back(f);
    return out;
  }();
  return fields;
}

std::string cood_blank(std::string_view column) {
  if (!is_synop_column(column)) return "";
  if (column == "UTC_SYNOP") return "  ";
  if (column == "RH") return "   ";
  if (column == "F32") return "333";
  return "     ";
}

void create_cood_table(Database& db) {
  std::string cols, names, marks;
  for (const PanelField& f : cood_fields()) {
    cols += (cols.empty() ? "" : ", ") + quote_name(f.column) + " TEXT";
    names += (names.empty() ? "" : ",") + quote_name(f.column);
    marks += marks.empty() ? "?" : ",?";
  }
  db.exec("CREATE TABLE COOD (" + cols + ")");
  auto st = db.prepare("INSERT INTO COOD (" + names + ") VALUES (" + marks + ")");
  int i = 1;
  for (const PanelField& f : cood_fields()) st.bind(i++, cood_blank(f.column));
  st.run();
}

void load_code_panel(Workstation& ws) {
  FrmCode& p = ws.FrmCode;
  if (p.loaded) return;
  p.loaded = true;
  FrmCode_load(ws);
}

void save_code_panel(Workstation& ws) {
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
void panel_changed(Workstation& ws) {
  FrmCode& p = ws.FrmCode;
  load_code_panel(ws);  // a group dropped in loads the panel, as any reference to it does
  if (p.store_pending) return;
  p.store_pending = true;
  ws.post([](Workstation& w) {
    w.FrmCode.store_pending = false;
    save_code_panel(w);
  });
}

}  // namespace

void wire_code_panel(Workstation& ws) {
  FrmCode& p = ws.FrmCode;
  p.on(ScreenEvent::Load, FrmCode_load);
  p.SSTab1.on(Event::Change, SSTab1_change);
  p.TXTSCDATA.on(Event::Change, TXTSCDATA_change);
  for (Control* back : Controls{&p.Command1, &p.Command2, &p.Command3}) back->on(Event::Click, Back_click);
  // Mirror: a change in the METAR frame shows at once in the SPECI frame; the
  // hour is not mirrored, the SPECI coder writes it itself.
  std::vector<std::pair<Control*, Control*>> mirror;
  for (const MirrorRow& r : kFrames)
    if (r.column != "UTC") mirror.emplace_back(&box_of(p, r.metar_box), &box_of(p, r.speci_box));
  for (const PanelField& f : cood_fields()) {
    Control& box = box_of(p, f.box);
    Control* twin = nullptr;
    for (const auto& [from, to] : mirror)
      if (from == &box) twin = to;
    const bool wind = &box == &p.Text77;
    box.on(Event::Change, [&box, twin, wind](Workstation& w) {
      if (twin != nullptr) w.set(*twin, box.text);
      if (wind) Text77_change(w);
      panel_changed(w);
    });
  }
  ws.FrmKashf.Command5.on(Event::Click, Command5_click);
}

}  // namespace obsdesk
