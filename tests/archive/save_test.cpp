// Confirmation and save through the workstation on a bank of its own: the
// past hours rolled forward, the row kept, the dates repaired, and the faults
// that stop a step with what was written left in place.
#include "archive/save.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "archive/report_fixture.h"
#include "bank/bank.h"
#include "bank/sqlite.h"
#include "core/textnum.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;
using test::confirm;
using test::enter;
using test::Obs;
using test::Station;

fs::path bank_dir(const Station& s) { return s.root() / "VARDOK" / "BANK" / "OIII"; }
fs::path scdata_dir(const Station& s) { return bank_dir(s) / "TEXT" / "SCDATA"; }
fs::path kashf_dir(const Station& s) { return bank_dir(s) / "TEXT" / "KASHF"; }

// The files of a folder and their number of lines.
std::map<std::string, long> lines_in(const fs::path& dir) {
  std::map<std::string, long> out;
  std::error_code ec;
  for (const auto& e : fs::directory_iterator(dir, ec)) {
    const std::string bytes = test::read_bytes(e.path());
    out[e.path().filename().string()] = std::count(bytes.begin(), bytes.end(), '\n');
  }
  return out;
}

// One value of the bank's KASHF table, e.g. "count(*)" or "SCDATA".
std::string kashf_value(const Station& s, const std::string& what) {
  Database db(resolve_bank_path(s.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT " + what + " FROM KASHF");
  return st.step() ? st.text(0) : "<no row>";
}

std::string first_message(Desk& ws) {
  const auto msgs = ws.take_messages();
  return msgs.size() == 1 ? msgs[0] : "<" + std::to_string(msgs.size()) + " messages>";
}

TEST(Save, ASynopRollsThePastHoursAndKeepsTheRow) {
  Station s;
  Desk& ws = enter(s, {});
  const std::string sline = ws.FrmCode.TXTSCDATA.text;
  ws.SYNOP_coded = 1;
  ws.METAR_coded = 1;
  confirm(ws);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_FALSE(ws.FrmKashf.visible);
  EXPECT_EQ(ws.SYNOP_coded, 0);
  EXPECT_EQ(ws.METAR_coded, 0);

  // The past hours: this report at 06, the working copies elsewhere.
  FrmMain& m = ws.FrmMain;
  EXPECT_EQ(m.txtutcpastb.text, "06");
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(m.TB[i]->text, i == 2 ? "12.4" : "t" + std::to_string(i));
    EXPECT_EQ(m.qfeB[i]->text, i == 2 ? "880.5" : "q" + std::to_string(i));
    EXPECT_EQ(m.rainB[i]->text, "r" + std::to_string(i));
  }
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  EXPECT_EQ(b.Text42.text, "      0 ");  // the Combo3 type, not the rain twin
  EXPECT_EQ(b.TXTNAM.text, pad_right("علي محمدي", 30));
  // The code panel is back to its blank groups.
  EXPECT_EQ(ws.FrmCode.Text76.text, "     ");
  EXPECT_EQ(ws.FrmCode.Text75.text, "  ");
  EXPECT_EQ(ws.FrmCode.Text103.text, "   ");
  EXPECT_EQ(ws.FrmCode.TXTYYGG.text, "");

  ws.click(b.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(kashf_value(s, "count(*)"), "1");
  EXPECT_EQ(kashf_value(s, "SCDATA"), sline);
  EXPECT_EQ(kashf_value(s, "SWW"), "02     ");
  // Back to browsing, the browser gone for the copy-out dialog, the past row kept.
  EXPECT_FALSE(b.save.enabled);
  EXPECT_TRUE(b.newW.enabled);
  EXPECT_TRUE(b.Command1.visible);
  EXPECT_FALSE(b.visible);
  Database past(resolve_bank_path(s.root(), past_path("VARDOK")), Database::Mode::ReadWrite);
  auto st = past.prepare("SELECT utcpastb, T06, QFE06B, RAIN21 FROM Past");
  ASSERT_TRUE(st.step());
  EXPECT_EQ(st.text(0) + " " + st.text(1) + " " + st.text(2) + " " + st.text(3), "06 12.4 880.5 r7");
}

// A SYN & MET off the main hours writes the SYNOP lines but only the METAR bulletin.
TEST(Save, ASynMetOffTheMainHoursWritesTheMetarBulletinOnly) {
  Station s;
  Obs o;
  o.kind = std::string(kSynMet);
  o.hour = "07";
  Desk& ws = enter(s, o);
  confirm(ws);
  ws.click(ws.FrmDisplayKashf.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(lines_in(scdata_dir(s)).size(), 5u);
  EXPECT_TRUE(fs::exists(s.root() / "VARDOK" / "METAR.DAT"));
  EXPECT_FALSE(fs::exists(s.root() / "VARDOK" / "SYNOP.DAT"));
  EXPECT_EQ(ws.FrmMain.txtutcpastb.text, "07");
}

TEST(Save, DatesPastTheMonthEndAreRepairedFirst) {
  struct Case {
    DateTexts in;
    bool leap;
    DateTexts out;
  };
  const Case gregorian[] = {
      {{"29", "02", "2023"}, false, {"01", "03", "2023"}}, {{"29", "02", "2024"}, true, {"29", "02", "2024"}},
      {{"30", "02", "2024"}, true, {"01", "03", "2024"}},  {{"32", "01", "2024"}, false, {"01", "02", "2024"}},
      {{"32", "12", "2004"}, false, {"01", "01", "2005"}}, {{"31", "04", "2024"}, false, {"01", "05", "2024"}},
      {{"31", "03", "2024"}, true, {"31", "03", "2024"}},
  };
  for (const Case& c : gregorian)
    EXPECT_EQ(repair_gregorian(c.in, c.leap), c.out) << c.in.day << "/" << c.in.month << "/" << c.in.year;
  const Case persian[] = {
      {{"32", "06", "1403"}, false, {"01", "07", "1403"}}, {{"31", "06", "1403"}, false, {"31", "06", "1403"}},
      {{"31", "07", "1403"}, false, {"01", "08", "1403"}}, {{"30", "12", "1402"}, false, {"01", "01", "1403"}},
      {{"30", "12", "1404"}, true, {"30", "12", "1404"}},  {{"31", "12", "1404"}, true, {"01", "01", "1405"}},
  };
  for (const Case& c : persian)
    EXPECT_EQ(repair_persian(c.in, c.leap), c.out) << c.in.day << "/" << c.in.month << "/" << c.in.year;

  // Through the confirmation: 29 February of a common year is written as 1 March.
  Station s;
  Obs o;
  o.year = "2023";
  o.month = "02";
  o.day = "29";
  Desk& ws = enter(s, o);
  confirm(ws);
  EXPECT_TRUE(fs::exists(scdata_dir(s) / "S7542303.dat"));
  EXPECT_EQ(ws.FrmDisplayKashf.TXTYYMMDDTT.text, "23030106  ");
  EXPECT_EQ(ws.calendar.GLeapThis, 0);
}

TEST(Save, AMissingFolderStopsTheConfirmationAndNothingIsLost) {
  Station s;
  Desk& ws = enter(s, {});
  fs::rename(scdata_dir(s), bank_dir(s) / "TEXT" / "ASIDE");
  confirm(ws);
  const std::string msg = first_message(ws);
  EXPECT_EQ(msg.rfind("FrmERR: Path not found: ", 0), 0u) << msg;
  EXPECT_NE(msg.find("SG7542403.dat"), std::string::npos) << msg;
  EXPECT_FALSE(fs::exists(scdata_dir(s)));  // not made here
  EXPECT_TRUE(ws.FrmKashf.visible);
  EXPECT_EQ(ws.FrmDisplayKashf.KASHF.rs.edit_mode(), Recordset::EditMode::Add);
  EXPECT_EQ(ws.FrmMain.txtutcpastb.text, "06");  // set before the first line

  // The folder back, a second confirmation goes through: one row, one line each.
  fs::rename(bank_dir(s) / "TEXT" / "ASIDE", scdata_dir(s));
  confirm(ws);
  ws.click(ws.FrmDisplayKashf.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(kashf_value(s, "count(*)"), "1");
  for (const auto& [name, lines] : lines_in(scdata_dir(s))) EXPECT_EQ(lines, 1) << name;
}

// A save that cannot write its files takes everything back: the row, the
// bulletin, the record; the row stays open and saves once the fault is mended,
// with each line once.
TEST(Save, AFaultAtSaveTakesTheSaveBackAndASecondSaveGoesThrough) {
  Station s;
  Desk& ws = enter(s, {});
  confirm(ws);
  const auto confirmed = lines_in(scdata_dir(s));
  fs::remove_all(kashf_dir(s));
  std::ofstream(kashf_dir(s)) << "not a folder";
  ws.click(ws.FrmDisplayKashf.save);
  const std::string msg = first_message(ws);
  EXPECT_EQ(msg.rfind("box: Path not found: ", 0), 0u) << msg;
  EXPECT_NE(msg.find("was not saved"), std::string::npos) << msg;
  EXPECT_EQ(kashf_value(s, "count(*)"), "0");
  EXPECT_FALSE(fs::exists(s.root() / "VARDOK" / "SYNOP.DAT"));
  EXPECT_EQ(lines_in(scdata_dir(s)), confirmed);  // the confirmation's lines wait for the row
  EXPECT_TRUE(ws.FrmDisplayKashf.visible);
  EXPECT_TRUE(ws.FrmDisplayKashf.save.enabled);

  fs::remove(kashf_dir(s));
  fs::create_directory(kashf_dir(s));
  ws.click(ws.FrmDisplayKashf.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(kashf_value(s, "count(*)"), "1");
  EXPECT_TRUE(fs::exists(s.root() / "VARDOK" / "SYNOP.DAT"));
  for (const auto& [name, lines] : lines_in(kashf_dir(s))) EXPECT_EQ(lines, 1) << name;
  EXPECT_EQ(lines_in(scdata_dir(s)), confirmed);
  // A start after whole saves finds nothing to finish, and says nothing.
  EXPECT_EQ(s.restart().take_messages(), std::vector<std::string>{});
  EXPECT_EQ(lines_in(scdata_dir(s)), confirmed);
}

// A station's first January: the 06 UTC save finds no December files to close
// and passes them over.
TEST(Save, AJanuaryMorningWithoutLastMonthsFilesSavesWhole) {
  Station s;
  Obs o;
  o.year = "2025";
  o.month = "01";
  o.day = "15";
  Desk& ws = enter(s, o);
  confirm(ws);
  ws.click(ws.FrmDisplayKashf.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_FALSE(fs::exists(kashf_dir(s) / "KASHF7542412.dat"));
  EXPECT_FALSE(fs::exists(scdata_dir(s) / "S7542412.dat"));
  EXPECT_EQ(lines_in(kashf_dir(s))["KASHF754.dat"], 1);
  EXPECT_EQ(kashf_value(s, "count(*)"), "1");
}

}  // namespace
}  // namespace obsdesk
