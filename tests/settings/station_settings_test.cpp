// The station settings screen: its commands over the Station table, the locking
// of its boxes, the Enter walk, the shared limit column and the constants.
#include "settings/station_settings.h"

#include <gtest/gtest.h>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using test::Station;

std::filesystem::path station_db(const Station& s) {
  return resolve_bank_path(s.root(), "VARDOK\\BANK\\ACCESS\\Station.mdb");
}

void add_station(const Station& s, const std::string& name, const std::string& code, const std::string& num,
                 const std::string& limit = "") {
  Database db(station_db(s), Database::Mode::ReadWrite);
  auto st = db.prepare("INSERT INTO Station (id, Sname, Txtcod, NumCod, txtmax1) VALUES ('x', ?, ?, ?, ?)");
  st.bind(1, name).bind(2, code).bind(3, num).bind(4, limit).run();
}

std::string column_of_row(const Station& s, int row, const std::string& column) {
  Database db(station_db(s), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT \"" + column + "\" FROM Station ORDER BY rowid LIMIT 1 OFFSET ?");
  st.bind(1, static_cast<std::int64_t>(row - 1));
  return st.step() ? st.text(0) : "<no row>";
}

int rows(const Station& s) {
  Database db(station_db(s), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT count(*) FROM Station");
  st.step();
  return static_cast<int>(st.integer(0));
}

// Start, then "Charactris Praimery Station" through the wait screen.
Desk& open_settings(Station& s) {
  Desk& ws = s.start();
  ws.click(ws.FrmMain.Command10);
  return ws;
}

void menu(Desk& ws, Control& command) {
  ws.click(ws.FrmOption.Label45);
  ws.click(command);
}

TEST(StationSettings, OpensReadOnlyWithItsConstants) {
  Station s;
  Desk& ws = open_settings(s);
  FrmOption& o = ws.FrmOption;
  for (Control* c : o.entry_boxes()) EXPECT_TRUE(c->locked) << c->name;
  EXPECT_EQ(o.entry_boxes().size(), 60u);
  // The frame shows the numbers as typed; the barometer reduction keeps its own.
  EXPECT_EQ(o.TXTPN.text, "1013.25");
  EXPECT_TRUE(o.OptPsang.value);
  EXPECT_FALSE(o.OptPnegar.value);
  // The commands live in the menu opened by "File".
  EXPECT_THROW(ws.click(o.nextt), UsageError);
  ws.click(o.Label45);
  EXPECT_TRUE(o.Frame4.visible);
  ws.click(o.Label45);
  EXPECT_FALSE(o.Frame4.visible);
  ws.type(o.NUMCOD, "99999");
  EXPECT_EQ(o.NUMCOD.text, "40754");
}

TEST(StationSettings, NewRowWalkedWithEnterAndSaved) {
  Station s;
  Desk& ws = open_settings(s);
  FrmOption& o = ws.FrmOption;
  menu(ws, o.nnew);
  EXPECT_FALSE(o.Frame4.visible);
  EXPECT_EQ(ws.focused(), &o.Text1);
  EXPECT_EQ(o.Text1.text, "");
  EXPECT_EQ(o.NUMCOD.text, "");
  for (Control* c : o.entry_boxes()) EXPECT_FALSE(c->locked) << c->name;
  for (Control* c : o.commands()) EXPECT_EQ(c->enabled, c == &o.savee) << c->name;

  const char* walk[] = {
      "Text1", "NUMCOD", "TXTCOD", "txtq1", "txtq2", "Text3", "Text2", "Txth", "txthmin", "txtci", "txttabesh",
      "txtminm1", "txtmin1", "txtmax1", "txtmaxm1", "txtminm2", "txtmin2", "txtmax2", "txtmaxm2",
      "txtminm3", "txtmin3", "txtmax3", "txtmaxm3", "txtminm4", "txtmin4", "txtmax4", "txtmaxm4",
      "txtminm5", "txtmin5", "txtmax5", "txtmaxm5", "txtminm6", "txtmin6", "txtmax6", "txtmaxm6",
      "txtminm7", "txtmin7", "txtmax7", "txtmaxm7", "txtminm8", "txtmin8", "txtmax8", "txtmaxm8",
      "txtminm9", "txtmin9", "txtmax9", "txtmaxm9",
      "Text5", "Text9", "Text6", "Text10", "Text7", "Text11", "Text8", "Text12"};
  for (std::size_t i = 0; i < std::size(walk); ++i) {
    ASSERT_EQ(ws.focused()->name, walk[i]) << i;
    ws.press_enter();
  }
  EXPECT_EQ(ws.focused(), &o.Text12);  // the walk ends there

  ws.type(o.Text1, "TABRIZ AIRPORT");
  ws.type(o.NUMCOD, "407061");  // five characters at most
  ws.type(o.TXTCOD, "OITT");
  ws.type(o.txtmax1, "38");
  ws.type(o.Text5, "ناظر");
  menu(ws, o.savee);
  EXPECT_EQ(rows(s), 2);
  EXPECT_EQ(column_of_row(s, 2, "Sname"), "TABRIZ AIRPORT");
  EXPECT_EQ(column_of_row(s, 2, "NumCod"), "40706");
  EXPECT_EQ(column_of_row(s, 2, "txtmax1"), "38");
  EXPECT_EQ(column_of_row(s, 2, "OBSERVER1"), "ناظر");
  EXPECT_EQ(o.Text1.text, "TABRIZ AIRPORT");  // the last row
  for (Control* c : o.entry_boxes()) EXPECT_TRUE(c->locked) << c->name;
  for (Control* c : o.commands()) EXPECT_TRUE(c->enabled) << c->name;
}

TEST(StationSettings, StepsStopAtBothEndsWithAMessage) {
  Station s;
  Desk& ws = open_settings(s);
  FrmOption& o = ws.FrmOption;
  add_station(s, "TABRIZ AIRPORT", "OITT", "40706");
  add_station(s, "BUSHEHR AIRPORT", "OIBB", "40858");
  ws.take_messages();
  const struct {
    Control* command;
    const char* name;
    bool message;
  } steps[] = {
      {&o.back, "MEHRABAD AIRPORT", true},  {&o.nextt, "TABRIZ AIRPORT", false},
      {&o.nextt, "BUSHEHR AIRPORT", false}, {&o.nextt, "BUSHEHR AIRPORT", true},
      {&o.firstt, "MEHRABAD AIRPORT", false}, {&o.LASTt, "BUSHEHR AIRPORT", false},
      {&o.back, "TABRIZ AIRPORT", false},
  };
  for (const auto& st : steps) {
    menu(ws, *st.command);
    EXPECT_EQ(o.Text1.text, st.name) << st.command->name;
    const auto said = ws.take_messages();
    EXPECT_EQ(said, st.message ? std::vector<std::string>{"box: No Record Found [Message]"}
                               : std::vector<std::string>{})
        << st.command->name;
  }
}

TEST(StationSettings, EditWritesTheChangedBoxesWhenTheRowIsLeft) {
  Station s;
  Desk& ws = open_settings(s);
  FrmOption& o = ws.FrmOption;
  add_station(s, "TABRIZ AIRPORT", "OITT", "40706", "abc");  // a limit that is no number
  menu(ws, o.EDITT);
  for (Control* c : o.entry_boxes()) EXPECT_FALSE(c->locked) << c->name;
  ws.type(o.Txth, "1191");
  menu(ws, o.nextt);  // leaving the row writes it
  EXPECT_EQ(column_of_row(s, 1, "txth"), "1191");
  EXPECT_EQ(o.Text1.text, "TABRIZ AIRPORT");
  EXPECT_EQ(o.txtmax1.text, "abc");
  menu(ws, o.firstt);
  EXPECT_EQ(o.Txth.text, "1191");
  EXPECT_EQ(rows(s), 2);
}

// Rows 5 and 6 share one absolute maximum: the box that was changed is stored.
TEST(StationSettings, TheSharedAbsoluteMaximumKeepsTheChangedBox) {
  const struct {
    const char* box;
    const char* text;
  } cases[] = {{"txtmaxm5", "70"}, {"txtmaxm6", "71"}};
  for (const auto& c : cases) {
    Station s;
    Desk& ws = open_settings(s);
    FrmOption& o = ws.FrmOption;
    EXPECT_EQ(o.txtmaxm5.text, "65");
    EXPECT_EQ(o.txtmaxm6.text, "65");
    menu(ws, o.EDITT);
    ws.type(*o.find(c.box), c.text);
    menu(ws, o.savee);
    EXPECT_EQ(column_of_row(s, 1, "txtmaxm5"), c.text) << c.box;
    EXPECT_EQ(o.txtmaxm5.text, c.text) << c.box;
    EXPECT_EQ(o.txtmaxm6.text, c.text) << c.box;
  }
  // The five limits with no column of their own are not kept.
  Station s;
  s.start();
  Database db(station_db(s), Database::Mode::ReadWrite);
  for (const char* column : {"txtmin3", "txtminm3", "txtmin8", "txtminm8", "txtmin9", "txtmaxm6"})
    EXPECT_FALSE(db.prepare("SELECT * FROM pragma_table_info('Station') WHERE name=?").bind(1, std::string(column)).step())
        << column;
}

TEST(StationSettings, TheBarometerOptionsWriteTheirPair) {
  Station s;
  Desk& ws = open_settings(s);
  FrmOption& o = ws.FrmOption;
  ws.click(o.OptPnegar);
  EXPECT_EQ(o.txtPnegar.text, "1");
  EXPECT_EQ(o.txtPsang.text, "0");
  ws.click(o.OptPsang);
  EXPECT_EQ(o.txtPnegar.text, "0");
  EXPECT_EQ(o.txtPsang.text, "1");
  add_station(s, "TABRIZ AIRPORT", "OITT", "40706");  // neither set
  menu(ws, o.nextt);
  EXPECT_FALSE(o.OptPnegar.value);
  EXPECT_FALSE(o.OptPsang.value);
}

// Update fills the empty observers of the row and keeps the names it has; the
// program ends with its reason on the message panel, the one screen left up.
TEST(StationSettings, UpdateFillsOnlyTheEmptyObservers) {
  Station s;
  Desk& ws = open_settings(s);
  menu(ws, ws.FrmOption.UPDATE);
  EXPECT_TRUE(ws.ended());
  EXPECT_TRUE(ws.FrmERR.visible);
  EXPECT_EQ(ws.FrmERR.Label1.text, kRestartToApply);
  EXPECT_FALSE(ws.FrmOption.visible);
  const std::pair<const char*, const char*> observers[] = {
      {"OBSERVER1", "احمد رضايي"}, {"OBSERVER4", "زهرا حسيني"}, {"OBSERVER5", kDutyObserver}, {"Observer8", kDutyObserver}};
  for (const auto& [column, name] : observers) EXPECT_EQ(column_of_row(s, 1, column), name) << column;
  EXPECT_EQ(rows(s), 1);
}

TEST(StationSettings, SearchFindsTheChosenCatalogueNameAnywhereInTheName) {
  const struct {
    const char* province;
    const char* pick;  // "" closes the picker
    const char* found;
  } cases[] = {
      {"AZAR BAYJAN_SHARGHI", " SARAB", "KHAN SARAB"},  // the blank is looked for too
      {"BUSHEHR", "BUSHEHR AIRPORT", "MEHRABAD AIRPORT"},   // none: the place stays
      {"AZAR BAYJAN_SHARGHI", "", "MEHRABAD AIRPORT"},
  };
  for (const auto& c : cases) {
    Station s;
    Desk& ws = s.start();
    add_station(s, "TABRIZ AIRPORT", "OITT", "40706");
    add_station(s, "SARAB", "OIXX", "40700");
    add_station(s, "KHAN SARAB", "OIXY", "40701");
    ws.click(ws.FrmMain.Command1);
    ws.choose(ws.FrmMain.ComboOstan, c.province);
    ws.click(ws.FrmMain.Command10);
    FrmOption& o = ws.FrmOption;
    menu(ws, o.search);
    ASSERT_EQ(ws.active_screen(), &ws.FrmSelectStation) << c.pick;
    if (*c.pick) ws.choose(ws.FrmSelectStation.Combo1, c.pick);
    else ws.unload(ws.FrmSelectStation);
    EXPECT_EQ(o.Text1.text, c.found) << c.pick;
    EXPECT_EQ(ws.active_screen(), &o) << c.pick;
  }
}

}  // namespace
}  // namespace obsdesk
