// The code panel: its store, the mirror into the SPECI frame, the count of the
// S line, the derived wind, the loading copies and Back.
#include "coders/code_panel.h"

#include <gtest/gtest.h>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

TEST(CodePanel, DerivedWind) {
  const std::pair<const char*, std::optional<std::string>> table[] = {
      {"52404", "24004"}, {"59903", "00000"}, {"     ", std::nullopt}, {"50000", "00000"}, {"80512", "05012"},
      {"336//", "360//"},
  };
  for (const auto& [nddff, dddff] : table) EXPECT_EQ(derived_wind(nddff), dddff) << nddff;
}

TEST(CodePanel, MirrorCountAndDerivedWindOnTheScreen) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmCode& p = ws.FrmCode;
  ws.set_text(p.Text5, "R29/1200");
  EXPECT_EQ(p.Text16.text, "R29/1200");
  ws.set_text(p.Text16, "by hand");  // not copied back
  EXPECT_EQ(p.Text5.text, "R29/1200");
  ws.set_text(p.Txt_NLC, "3LC");
  EXPECT_EQ(p.Text32.text, "3LC");
  ws.set_text(p.TXTUTC, "1230");  // the hour has no mirror
  EXPECT_EQ(p.Text29.text, "");
  ws.set_text(p.TXTSCDATA, "abc");
  EXPECT_EQ(p.TXTTEDAD.text, "3");
  ws.set_text(p.TXTSCDATA, "");
  EXPECT_EQ(p.TXTTEDAD.text, "0");
  ws.set_text(p.Text77, "52404");
  EXPECT_EQ(p.Text34.text, "24004");
  ws.set_text(p.Text77, "     ");
  EXPECT_EQ(p.Text34.text, "24004");
  ws.set_text(p.SSTab1, "2");
  EXPECT_EQ(p.Shape1.back_color, 0xE0E0E0);
}

TEST(CodePanel, OpensWithTheSpeciCopiesAndGoesBack) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmCode& p = ws.FrmCode;
  p.Text1.text = "WS R29";
  p.Text2.text = "RERA";
  ws.click(ws.FrmKashf.Command5);
  EXPECT_TRUE(p.visible);
  EXPECT_EQ(p.Text28.text, "WS R29");
  EXPECT_EQ(p.Text27.text, "RERA");
  EXPECT_EQ(p.Text76.text, "     ");  // the blank SYNOP group
  ws.click(p.Command2);
  EXPECT_FALSE(p.visible);
  EXPECT_TRUE(ws.FrmKashf.visible);
  EXPECT_EQ(ws.active_screen(), &ws.FrmKashf);
}

TEST(CodePanel, TheStoreKeepsThePanelBetweenRuns) {
  test::Station s;
  {
    Desk& ws = s.open_entry();
    ws.click(ws.FrmKashf.Command5);
    ws.set_text(ws.FrmCode.Text85, "70222");
    ws.set_text(ws.FrmCode.Text4, "-RA");
    ws.click(ws.FrmCode.Command3);
  }
  test::Station again;  // another bank: a fresh store stays blank
  {
    Desk& ws = again.open_entry();
    ws.click(ws.FrmKashf.Command5);
    EXPECT_EQ(ws.FrmCode.Text85.text, "     ");
  }
  // The same bank: a new workstation finds the panel as it was left, but a box
  // written before the panel was loaded keeps what was written.
  Desk& ws = s.restart();
  ws.FrmCode.Text4.text = "+TSRA";
  load_code_panel(ws);
  EXPECT_EQ(ws.FrmCode.Text85.text, "70222");
  EXPECT_EQ(ws.FrmCode.Text17.text, "-RA");  // the SPECI twin has its own stored value
  EXPECT_EQ(ws.FrmCode.Text4.text, "+TSRA");
}

TEST(CodePanel, AClearedPanelIsStoredClearedWithoutGoingBack) {
  test::Station s;
  {
    Desk& ws = s.open_entry();
    ws.set_text(ws.FrmCode.Text85, "70222");  // a picker drops a group in
    ws.set_text(ws.FrmCode.Text87, "90550");
    ws.set_text(ws.FrmCode.Text85, "     ");  // the confirmation clears it
  }
  Desk& ws = s.restart();
  load_code_panel(ws);
  EXPECT_EQ(ws.FrmCode.Text85.text, "     ");
  EXPECT_EQ(ws.FrmCode.Text87.text, "90550");
}

TEST(CodePanel, TheNewBankHoldsOneBlankRow) {
  test::Station s;
  s.start();
  Database db(resolve_bank_path(s.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
  ASSERT_TRUE(db.has_table("COOD"));
  auto st = db.prepare("SELECT count(*), \"IRIXHVV\", \"F32\", \"RH\", \"UTC_SYNOP\", \"CCCC\" FROM COOD");
  ASSERT_TRUE(st.step());
  EXPECT_EQ(st.text(0) + "|" + st.text(1) + "|" + st.text(2) + "|" + st.text(3) + "|" + st.text(4) + "|" + st.text(5),
            "1|     |333|   |  |");
}

TEST(CodePanel, ABankWithoutTheTableGetsIt) {
  test::Station s;
  s.start();
  {
    Database db(resolve_bank_path(s.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
    db.exec("DROP TABLE COOD");
    db.exec("CREATE TABLE COOD (\"IRIXHVV\" TEXT)");  // an older table with one column and no row
  }
  Desk& ws = *s.ws;
  load_code_panel(ws);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(ws.FrmCode.Text77.text, "     ");
  ws.FrmCode.Text77.text = "52404";
  save_code_panel(ws);
  Database db(resolve_bank_path(s.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT \"NDDFF\" FROM COOD");
  ASSERT_TRUE(st.step());
  EXPECT_EQ(st.text(0), "52404");
}

}  // namespace
}  // namespace obsdesk
