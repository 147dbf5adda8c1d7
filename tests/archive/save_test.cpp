// Confirmation and save through the workstation on a bank of its own: the
// files written, the row kept, the past hours rolled forward, and the faults
// that stop a step with what was written left in place.
#include "archive/save.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "archive/text_archive.h"
#include "bank/bank.h"
#include "bank/sqlite.h"
#include "core/record.h"
#include "core/textnum.h"
#include "support/test_support.h"
#include "archive/report_fixture.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;
using test::Station;
using test::Obs;
using test::enter;
using test::confirm;

fs::path bank_dir(const Station& s) { return s.root() / "VARDOK" / "BANK" / "OIII"; }
fs::path scdata_dir(const Station& s) { return bank_dir(s) / "TEXT" / "SCDATA"; }
fs::path kashf_dir(const Station& s) { return bank_dir(s) / "TEXT" / "KASHF"; }

std::string read_bytes(const fs::path& f) {
  std::ifstream in(f, std::ios::binary);
  std::ostringstream o;
  o << in.rdbuf();
  return o.str();
}

// The files of a folder and their contents.
std::map<std::string, std::string> files_in(const fs::path& dir) {
  std::map<std::string, std::string> out;
  std::error_code ec;
  for (const auto& e : fs::directory_iterator(dir, ec)) out[e.path().filename().string()] = read_bytes(e.path());
  return out;
}

std::string crlf(const std::string& line) { return to_cp1256(line) + "\r\n"; }

std::map<std::string, std::string> last_kashf_row(const Station& s) {
  Database db(resolve_bank_path(s.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT yymmddttgg, TYPEREPORT, DD, QNHIN, TYPL3, OBSERVERNAME, SCDATA, GUSTY, SWW, count(*) "
                       "FROM KASHF");
  std::map<std::string, std::string> row;
  if (!st.step()) return row;
  const char* names[] = {"yymmddttgg", "TYPEREPORT", "DD", "QNHIN", "TYPL3", "OBSERVERNAME", "SCDATA", "GUSTY", "SWW",
                         "count"};
  for (int i = 0; i < 10; ++i) row[names[i]] = st.text(i);
  return row;
}

TEST(Save, ASynopRunsFromConfirmationToFile) {
  Station s;
  Workstation& ws = enter(s, {});
  const std::string sline = ws.FrmCode.TXTSCDATA.text;
  const std::string gline = ws.FrmCode.TXTgolbad.text;
  ws.SYNOP_coded = 1;
  ws.METAR_coded = 1;
  confirm(ws);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_FALSE(ws.FrmKashf.visible);
  EXPECT_EQ(ws.SYNOP_coded, 0);
  EXPECT_EQ(ws.METAR_coded, 0);

  // The SCDATA lines of a 24-hour station's SYNOP, with the IT file of the day.
  const std::map<std::string, std::string> scdata = {
      {"S7542403.dat", crlf(sline)},       {"S754.dat", crlf(sline)},         {"SG7542403.dat", crlf(gline)},
      {"SG754.dat", crlf(gline)},          {"S75420240319" "20IT.DAT", crlf("266" + mid(sline, 4))},
  };
  EXPECT_EQ(files_in(scdata_dir(s)), scdata);

  // The past hours: this report at 06, the working copies elsewhere.
  FrmMain& m = ws.FrmMain;
  EXPECT_EQ(m.txtutcpastb.text, "06");
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(m.TB[i]->text, i == 2 ? "12.4" : "t" + std::to_string(i));
    EXPECT_EQ(m.qfeB[i]->text, i == 2 ? "880.5" : "q" + std::to_string(i));
    EXPECT_EQ(m.rainB[i]->text, "r" + std::to_string(i));
  }

  // The row in the browser, padded.
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  EXPECT_TRUE(b.visible);
  EXPECT_EQ(b.TXTYYMMDDTT.text, "24032006  ");
  EXPECT_EQ(b.TXTSEL.text, "SYNOP    ");
  EXPECT_EQ(b.Text2.text, "270 ");
  EXPECT_EQ(b.Text20.text, "29.90");
  EXPECT_EQ(b.Text42.text, "      0 ");  // the Combo3 type, not the rain twin
  EXPECT_EQ(b.Text45.text, "CU     1");
  EXPECT_EQ(b.TXTGUSTY.text, "   ");
  EXPECT_EQ(b.Text9.text, "    ");
  EXPECT_EQ(b.Text1.text, "06");  // the hour is stored as it stands
  EXPECT_EQ(b.TXTNAM.text, pad_right("علي محمدي", 30));
  EXPECT_EQ(b.TXTWW4.text, "02     ");
  EXPECT_EQ(b.Text44.text, pad_right("MEHRABAD AIRPORT  OIII  40754", 50));
  // The code panel is back to its blank groups.
  EXPECT_EQ(ws.FrmCode.Text76.text, "     ");
  EXPECT_EQ(ws.FrmCode.Text75.text, "  ");
  EXPECT_EQ(ws.FrmCode.Text103.text, "   ");
  EXPECT_EQ(ws.FrmCode.TXTYYGG.text, "");

  ws.click(b.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  const auto row = last_kashf_row(s);
  EXPECT_EQ(row.at("count"), "1");
  EXPECT_EQ(row.at("yymmddttgg"), "24032006  ");
  EXPECT_EQ(row.at("QNHIN"), "29.90");
  EXPECT_EQ(row.at("OBSERVERNAME"), pad_right("علي محمدي", 30));
  EXPECT_EQ(row.at("SCDATA"), sline);
  EXPECT_EQ(row.at("GUSTY"), "   ");
  EXPECT_EQ(row.at("SWW"), "02     ");
  EXPECT_EQ(read_bytes(s.root() / "VARDOK" / "SYNOP.DAT"),
            crlf("ZCZC") + crlf("SMIR46 OIII 200600") + crlf("AAXX 20061") + crlf("40754 12570 32704 10124=") +
                crlf("NNNN"));
  EXPECT_FALSE(fs::exists(s.root() / "VARDOK" / "METAR.DAT"));
  const std::string record = b.txtkashf.text;
  EXPECT_EQ(left(record, 60), pad_right("MEHRABAD AIRPORT  OIII  40754", 50) + "SYNOP    " + " ");
  EXPECT_EQ(right(record, 10), "NOTEملاحظه");
  EXPECT_EQ(files_in(kashf_dir(s)),
            (std::map<std::string, std::string>{{"KASHF7542403.dat", crlf(record)}, {"KASHF754.dat", crlf(record)}}));
  // Back to browsing, the browser gone for the copy-out dialog, the past row kept.
  EXPECT_FALSE(b.save.enabled);
  EXPECT_TRUE(b.newW.enabled);
  EXPECT_TRUE(b.Command1.visible);
  EXPECT_FALSE(b.visible);
  Database past(resolve_bank_path(s.root(), past_path("VARDOK")), Database::Mode::ReadWrite);
  auto st = past.prepare("SELECT utcpastb, T06, QFE06B, RAIN21 FROM Past");
  ASSERT_TRUE(st.step());
  EXPECT_EQ(st.text(0), "06");
  EXPECT_EQ(st.text(1), "12.4");
  EXPECT_EQ(st.text(2), "880.5");
  EXPECT_EQ(st.text(3), "r7");
}

TEST(Save, TheScdataFilesByStationKindReportKindAndHour) {
  struct Case {
    bool twelve;
    std::string_view kind;
    std::string hour, txt1;
    std::vector<std::string> scdata;  // files written, one line each
    std::vector<std::string> bulletins;
    std::string utcpast;  // txtutcpastb afterwards
  };
  const std::vector<std::string> all = {"S754.dat", "S75420240319" "20IT.DAT", "S7542403.dat", "SG754.dat",
                                        "SG7542403.dat"};
  const std::vector<std::string> no_it = {"S754.dat", "S7542403.dat", "SG754.dat", "SG7542403.dat"};
  const Case cases[] = {
      {false, kSynop, "06", "", all, {"SYNOP.DAT"}, "06"},
      {false, kSynop, "01", "", all, {}, "01"},  // no bulletin off the main hours
      {false, kSynMet, "12", "", all, {"METAR.DAT", "SYNOP.DAT"}, "12"},
      {false, kSynMet, "07", "", all, {"METAR.DAT"}, "07"},
      {false, kMetar, "07", "", {}, {"METAR.DAT"}, ""},
      {false, kMetar30, "", "0630", {}, {"METAR.DAT"}, ""},
      {false, kSpeci, "", "0645", {}, {"SPECI.DAT"}, ""},
      {true, kSpeci, "", "1845", {}, {"SPECI.DAT"}, ""},
      {true, kSynop, "18", "", no_it, {"SYNOP.DAT"}, "18"},
      {true, kMetar, "21", "", no_it, {"METAR.DAT"}, "21"},  // by the hour alone, whatever the kind
      {true, kSynop, "06", "", all, {"SYNOP.DAT"}, "06"},
  };
  for (const Case& c : cases) {
    Station s;
    Obs o;
    o.kind = std::string(c.kind);
    o.hour = c.hour;
    o.txt1 = c.txt1;
    Workstation& ws = enter(s, o);
    if (c.twelve) ws.FrmOption.Combo1.text = std::string(kStation12);
    confirm(ws);
    ws.click(ws.FrmDisplayKashf.save);
    const std::string where = std::string(c.kind) + " at " + c.hour + c.txt1 + (c.twelve ? " (12 h)" : "");
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{}) << where;
    std::vector<std::string> written;
    for (const auto& [name, content] : files_in(scdata_dir(s))) {
      written.push_back(name);
      EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 1) << where << name;
    }
    EXPECT_EQ(written, c.scdata) << where;
    std::vector<std::string> bulletins;
    for (const char* f : {"METAR.DAT", "SPECI.DAT", "SYNOP.DAT"})
      if (fs::exists(s.root() / "VARDOK" / f)) bulletins.emplace_back(f);
    EXPECT_EQ(bulletins, c.bulletins) << where;
    EXPECT_EQ(ws.FrmMain.txtutcpastb.text, c.utcpast) << where;
    EXPECT_EQ(files_in(kashf_dir(s)).size(), 2u) << where;
    EXPECT_EQ(last_kashf_row(s).at("count"), "1") << where;
  }
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
      {{"32", "10", "2024"}, false, {"01", "11", "2024"}}, {{"32", "12", "2004"}, false, {"01", "01", "2005"}},
      {{"31", "04", "2024"}, false, {"01", "05", "2024"}}, {{"31", "11", "2024"}, false, {"01", "12", "2024"}},
      {{"31", "12", "2024"}, true, {"31", "12", "2024"}},  {{"31", "03", "2024"}, true, {"31", "03", "2024"}},
  };
  for (const Case& c : gregorian)
    EXPECT_EQ(repair_gregorian(c.in, c.leap), c.out) << c.in.day << "/" << c.in.month << "/" << c.in.year;
  const Case persian[] = {
      {{"32", "06", "1403"}, false, {"01", "07", "1403"}}, {{"31", "06", "1403"}, false, {"31", "06", "1403"}},
      {{"31", "07", "1403"}, false, {"01", "08", "1403"}}, {{"31", "11", "1403"}, false, {"01", "12", "1403"}},
      {{"30", "12", "1402"}, false, {"01", "01", "1403"}}, {{"30", "12", "1404"}, true, {"30", "12", "1404"}},
      {{"31", "12", "1404"}, true, {"01", "01", "1405"}},
  };
  for (const Case& c : persian)
    EXPECT_EQ(repair_persian(c.in, c.leap), c.out) << c.in.day << "/" << c.in.month << "/" << c.in.year;

  // Through the confirmation: 29 February of a common year is written as 1 March.
  Station s;
  Obs o;
  o.year = "2023";
  o.month = "02";
  o.day = "29";
  Workstation& ws = enter(s, o);
  confirm(ws);
  EXPECT_TRUE(fs::exists(scdata_dir(s) / "S7542303.dat"));
  EXPECT_EQ(ws.FrmDisplayKashf.TXTYYMMDDTT.text, "23030106  ");
  EXPECT_EQ(ws.calendar.GLeapThis, 0);
}

TEST(Save, TheItFileAfterNoonOnNewYearsEve) {
  Station s;
  Obs o;
  o.year = "2004";
  o.month = "12";
  o.day = "31";
  o.hour = "13";
  Workstation& ws = enter(s, o);
  confirm(ws);
  EXPECT_TRUE(fs::exists(scdata_dir(s) / "S75420050100" "01IT.DAT"));
  EXPECT_TRUE(fs::exists(scdata_dir(s) / "S7540412.dat"));
}

TEST(Save, AValueWiderThanItsFieldStopsAtThePadding) {
  Station s;
  Workstation& ws = enter(s, {});
  ws.FrmKashf.Text24.text = "15340.12";  // H850 is stored in seven places
  confirm(ws);
  EXPECT_EQ(ws.take_messages(),
            std::vector<std::string>{"FrmERR: Invalid procedure call or argument: Text24 holds 8 characters, its field 7"});
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  EXPECT_TRUE(ws.FrmKashf.visible);
  EXPECT_EQ(files_in(scdata_dir(s)).size(), 5u);  // the lines are written and stay
  EXPECT_EQ(b.KASHF.rs.edit_mode(), Recordset::EditMode::Add);
  EXPECT_EQ(b.Text21.text, "      ");  // padded before it
  EXPECT_EQ(b.Text29.text, "");        // not after it
  EXPECT_EQ(b.Text9.text, "");
}

TEST(Save, AMissingFolderStopsTheConfirmationAndNothingIsLost) {
  Station s;
  Workstation& ws = enter(s, {});
  fs::rename(scdata_dir(s), bank_dir(s) / "TEXT" / "ASIDE");
  confirm(ws);
  const auto msgs = ws.take_messages();
  ASSERT_EQ(msgs.size(), 1u);
  EXPECT_EQ(msgs[0].rfind("FrmERR: Path not found: ", 0), 0u) << msgs[0];
  EXPECT_NE(msgs[0].find("SG7542403.dat"), std::string::npos) << msgs[0];
  EXPECT_FALSE(fs::exists(scdata_dir(s)));  // not made here
  EXPECT_TRUE(ws.FrmKashf.visible);
  EXPECT_EQ(ws.FrmDisplayKashf.KASHF.rs.edit_mode(), Recordset::EditMode::Add);
  EXPECT_EQ(ws.FrmMain.txtutcpastb.text, "06");  // set before the first line

  // The folder back, a second confirmation goes through: one row, one line each.
  fs::rename(bank_dir(s) / "TEXT" / "ASIDE", scdata_dir(s));
  confirm(ws);
  ws.click(ws.FrmDisplayKashf.save);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(last_kashf_row(s).at("count"), "1");
  for (const auto& [name, content] : files_in(scdata_dir(s))) EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 1) << name;
}

TEST(Save, AFaultAtSaveKeepsTheCommittedRowAndTheBulletin) {
  Station s;
  Workstation& ws = enter(s, {});
  confirm(ws);
  fs::remove_all(kashf_dir(s));
  fs::create_directories(kashf_dir(s).parent_path());
  std::ofstream(kashf_dir(s)) << "not a folder";
  ws.click(ws.FrmDisplayKashf.save);
  const auto msgs = ws.take_messages();
  ASSERT_EQ(msgs.size(), 1u);
  EXPECT_EQ(msgs[0].rfind("box: Path not found: ", 0), 0u) << msgs[0];
  EXPECT_EQ(last_kashf_row(s).at("count"), "1");
  EXPECT_TRUE(fs::exists(s.root() / "VARDOK" / "SYNOP.DAT"));
  EXPECT_TRUE(ws.FrmDisplayKashf.visible);      // the steps after it are not done
  EXPECT_FALSE(ws.FrmDisplayKashf.save.enabled);  // a second save of the row cannot happen
}

TEST(Save, TheMonthEndRewriteAtEveryJanuaryMorningReport) {
  struct Case {
    std::string day, hour;
    bool last_month_files;
    std::string message;  // "" when none
    std::size_t record_lines;
  };
  const Case cases[] = {
      {"15", "06", true, "", 1},
      {"15", "09", true, "", 1},  // only at 06 UTC
      {"15", "06", false, "box: File not found: ", 0},
  };
  for (const Case& c : cases) {
    Station s;
    Obs o;
    o.year = "2025";
    o.month = "01";
    o.day = c.day;
    o.hour = c.hour;
    create_bank(s.root());
    if (c.last_month_files) {
      std::ofstream(scdata_dir(s) / "S7542412.dat", std::ios::binary) << "old\r\n";
      std::ofstream(kashf_dir(s) / "KASHF7542412.dat", std::ios::binary) << "old\r\n";
    }
    Workstation& ws = enter(s, o);
    confirm(ws);
    ws.click(ws.FrmDisplayKashf.save);
    const auto msgs = ws.take_messages();
    const std::string where = c.day + " " + c.hour;
    if (c.message.empty()) {
      EXPECT_EQ(msgs, std::vector<std::string>{}) << where;
    } else {
      ASSERT_EQ(msgs.size(), 1u) << where;
      EXPECT_EQ(msgs[0].rfind(c.message, 0), 0u) << msgs[0];
    }
    const bool rewritten = c.last_month_files && c.hour == "06";
    if (c.last_month_files) {
      EXPECT_EQ(read_bytes(scdata_dir(s) / "S7542412.dat"), rewritten ? "old\r\n\r\n" : "old\r\n") << where;
      EXPECT_EQ(read_bytes(kashf_dir(s) / "KASHF7542412.dat"), rewritten ? "old\r\n\r\n" : "old\r\n") << where;
    }
    EXPECT_EQ(fs::exists(kashf_dir(s) / "KASHF754.dat"), c.record_lines == 1) << where;
    EXPECT_EQ(last_kashf_row(s).at("count"), "1") << where;
  }
}

}  // namespace
}  // namespace obsdesk
