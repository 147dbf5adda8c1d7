// Program start: the bank made on a first start, the second copy refused, the
// station row chosen by number, the start screen's commands and bad banks.
#include "station/program.h"

#include <gtest/gtest.h>

#include <fstream>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using test::Station;

std::filesystem::path station_db(const Station& s) {
  return resolve_bank_path(s.root(), "VARDOK\\BANK\\ACCESS\\Station.mdb");
}

void add_station(const Station& s, const std::string& name, const std::string& code, const std::string& num) {
  Database db(station_db(s), Database::Mode::ReadWrite);
  auto st = db.prepare("INSERT INTO Station (id, Sname, Txtcod, NumCod) VALUES ('x', ?, ?, ?)");
  st.bind(1, name).bind(2, code).bind(3, num).run();
}

void set_id(const Station& s, const std::string& id) {
  Database db(resolve_bank_path(s.root(), "VARDOK\\Bank\\Access\\ID.MDB"), Database::Mode::ReadWrite);
  db.prepare("UPDATE ID SET ID=?").bind(1, id).run();
}

TEST(Start, AFirstStartMakesTheBankAndShowsTheDemoStation) {
  Station s;
  Desk& ws = s.start();
  EXPECT_FALSE(ws.frmAbout.visible);
  EXPECT_EQ(ws.active_screen(), &ws.FrmMain);
  EXPECT_EQ(ws.FrmOption.Text7.text, "علي محمدي");
  EXPECT_TRUE(ws.take_messages().empty());
  EXPECT_TRUE(std::filesystem::is_directory(s.root() / "VARDOK" / "BANK" / "OIII" / "TEXT" / "SCDATA"));
}

TEST(Start, ASecondCopyOnTheSameBankIsRefused) {
  Station first;
  first.start();
  Workstation second(first.root(), Services{first.asker, first.clock, first.clipboard});
  start_program(second);
  EXPECT_TRUE(second.ended());
  EXPECT_EQ(second.take_messages(), std::vector<std::string>{"box: Program Already Runned"});
  EXPECT_FALSE(first.ws->ended());
}

TEST(Start, TheStationRowIsChosenByTheIdNumber) {
  const struct {
    std::string id;
    std::string heading;
    int no_record_boxes;
  } cases[] = {
      {"", "MEHRABAD AIRPORT  OIII  40754", 0},
      {"0", "MEHRABAD AIRPORT  OIII  40754", 0},
      {"3", "BUSHEHR AIRPORT  OIBB  40858", 0},
      {"5", "BUSHEHR AIRPORT  OIBB  40858", 2},  // one box for each step past the end
  };
  for (const auto& c : cases) {
    Station s;
    s.start();
    add_station(s, "TABRIZ AIRPORT", "OITT", "40706");
    add_station(s, "BUSHEHR AIRPORT", "OIBB", "40858");
    set_id(s, c.id);
    s.ws->take_messages();
    s.ws->click(s.ws->FrmMain.Label43);  // the about box: the start screen is activated again
    s.ws->click(s.ws->frmAbout.cmdOK);
    EXPECT_EQ(s.ws->FrmKashf.Text44.text, c.heading) << "ID " << c.id;
    int boxes = 0;
    for (const auto& m : s.ws->take_messages()) boxes += m == "box: No Record Found [Message]";
    EXPECT_EQ(boxes, c.no_record_boxes) << "ID " << c.id;
  }
}

TEST(Start, TheIdBoxTakesThreeDigitsAndIsKeptForTheNextActivation) {
  Station s;
  Desk& ws = s.start();
  ws.click(ws.FrmMain.Label2);
  ASSERT_TRUE(ws.FrmMain.Text1.visible);
  for (const char* bad : {"1234", "x"}) {
    ws.take_messages();
    ws.type(ws.FrmMain.Text1, bad);
    EXPECT_EQ(ws.FrmMain.Text1.text, "") << bad;
    EXPECT_EQ(ws.take_messages().front(), "FrmERR:      مــقدار داده را چــك نمـائيـــد") << bad;
    EXPECT_EQ(ws.focused(), &ws.FrmMain.Text1);
  }
  ws.type(ws.FrmMain.Text1, "7");
  Recordset id;
  id.open(resolve_bank_path(s.root(), "VARDOK\\bank\\access\\ID.mdb"), "ID");
  EXPECT_EQ(id.get("ID"), "7");
}

TEST(Start, TheWaitScreenActsOnTheNextScreenCode) {
  const struct {
    int code;
    const char* screen;
  } cases[] = {{2, "FrmOption"}, {16, "FrmHelp"}, {44, "FrmKashf"}, {10, "FrmMain"}, {99, "FrmMain"}};
  for (const auto& c : cases) {
    Station s;
    Desk& ws = s.start();
    ws.next_screen = c.code;
    ws.show(ws.FrmEntezar);
    ws.click(ws.FrmMain.Label2);  // any input lets the wait screen's tick run
    ASSERT_NE(ws.active_screen(), nullptr) << c.code;
    EXPECT_EQ(ws.active_screen()->name, c.screen) << c.code;
    EXPECT_FALSE(ws.FrmEntezar.visible);
    EXPECT_EQ(ws.FrmMain.Frame1.visible, c.code == 10);
  }
}

TEST(Start, ChoosingTheBankStoresThePathWithoutTheDrive) {
  Station s;
  Desk& ws = s.start();
  ws.dbl_click(ws.FrmMain.Label34);
  ASSERT_TRUE(ws.FrmMain.Frame1.visible);
  ws.set_text(ws.FrmMain.CommonDialog1, "C:\\VARDOK\\BANK\\OIMM\\ACCESS\\Kashf.mdb");
  ws.click(ws.FrmMain.cmdOpen);
  EXPECT_EQ(ws.FrmMain.txtpathnamebank1.text, "VARDOK\\BANK\\OIMM\\ACCESS\\Kashf.mdb");
  EXPECT_EQ(ws.FrmMain.txtpathnamebank3.text, "VARDOK\\BANK\\OIMM\\ACCESS\\Rain.mdb");
  EXPECT_FALSE(ws.FrmMain.Frame1.visible);
  Recordset id;
  id.open(resolve_bank_path(s.root(), "VARDOK\\Bank\\Access\\ID.MDB"), "ID");
  EXPECT_EQ(id.get("TXTPathNameBank1"), "VARDOK\\BANK\\OIMM\\ACCESS\\Kashf.mdb");
  // A name chosen below the bank root loses the root instead.
  ws.dbl_click(ws.FrmMain.Label34);
  ws.click(ws.FrmMain.Option2);
  ws.set_text(ws.FrmMain.CommonDialog1, ws.Derive + "VARDOK/BANK/ACCESS/Station.mdb");
  ws.click(ws.FrmMain.cmdOpen);
  EXPECT_EQ(ws.FrmMain.txtpathnamebank2.text, "VARDOK\\BANK\\ACCESS\\Station.mdb");
}

TEST(Start, AMissingOrDamagedControlDatabaseIsToldByNameAndTheRestGoesOn) {
  Station s;
  s.start();
  s.ws->end_program();
  std::filesystem::remove(resolve_bank_path(s.root(), "VARDOK\\Bank\\Access\\BackColor.MDB"));
  std::ofstream(resolve_bank_path(s.root(), "VARDOK\\Bank\\Access\\SelectOstan.MDB"), std::ios::trunc)
      << "garbage garbage garbage garbage garbage garbage garbage garbage garbage garbage";
  Station again(test::Root::Empty);
  std::filesystem::rename(s.root(), again.root());
  Desk& ws = again.start();
  const auto msgs = ws.take_messages();
  auto told = [&](const char* file) {
    for (const auto& m : msgs)
      if (m.find(file) != std::string::npos) return true;
    return false;
  };
  EXPECT_TRUE(told("BackColor.MDB"));
  EXPECT_TRUE(told("SelectOstan.MDB"));
  EXPECT_EQ(ws.FrmKashf.Text44.text, "MEHRABAD AIRPORT  OIII  40754");
  EXPECT_TRUE(ws.FrmMain.visible);
}

TEST(Start, ABankRootThatCannotBeMadeIsRefusedClearly) {
  test::TempDir dir;
  std::ofstream(dir.path() / "plain-file") << "x";
  QueueAsker asker;
  FixedClock clock;
  MemoryClipboard clip;
  Workstation ws(dir.path() / "plain-file" / "bank", Services{asker, clock, clip});
  try {
    start_program(ws);
    FAIL();
  } catch (const BankError& e) {
    EXPECT_NE(std::string(e.what()).find("plain-file"), std::string::npos);
  }
}

TEST(Colours, TheFormColourIsReadInBothSpellings) {
  EXPECT_EQ(parse_colour("&H00C0C0C0&"), 0xC0C0C0);
  EXPECT_EQ(parse_colour("12632256"), 12632256);
  EXPECT_EQ(parse_colour(""), 0xC0C0C0);
}

// The colour the chooser returns goes to the frames of the start screen, the
// entry screen and the browser at once, and is there again at the next start; a
// cancelled chooser changes nothing.
TEST(Colours, AChosenColourIsAppliedAndKeptForTheNextStart) {
  test::Station s;
  Desk& ws = s.start();
  const std::string before = ws.FrmMain.TxtBackColor.text;
  ws.set_text(ws.FrmMain.CommonDialog1, "");
  ws.click(ws.FrmMain.LabColor);
  EXPECT_EQ(ws.FrmMain.TxtBackColor.text, before);
  ws.set_text(ws.FrmMain.CommonDialog1, "8421631");  // 0x8080FF
  ws.click(ws.FrmMain.LabColor);
  EXPECT_EQ(ws.FrmMain.TxtBackColor.text, "8421631");
  EXPECT_EQ(ws.FrmMain.Frame3.back_color, 8421631);
  EXPECT_EQ(ws.FrmKashf.Frameh1.back_color, 8421631);
  Desk& again = s.restart();
  EXPECT_EQ(again.FrmMain.TxtBackColor.text, "8421631");
  EXPECT_EQ(again.FrmMain.Frame3.back_color, 8421631);
  EXPECT_EQ(again.FrmDisplayKashf.Frame1.back_color, 8421631);
}

}  // namespace
}  // namespace obsdesk
