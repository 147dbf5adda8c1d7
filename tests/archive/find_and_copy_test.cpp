// From a saved report to the observer's hands: the copy-out dialog after the
// save, the search by a Persian date, and the past hours corrected for the next
// report.
#include <gtest/gtest.h>

#include "archive/report_fixture.h"
#include "core/seams.h"
#include "core/textnum.h"

namespace obsdesk {
namespace {

using test::Obs;
using test::Station;

void save_report(Workstation& ws, const Obs& o) {
  test::new_report(ws, o);
  ws.SYNOP_coded = 1;
  test::confirm(ws);
  ws.click(ws.FrmDisplayKashf.save);
}

TEST(FindAndCopy, ASavedReportIsCopiedOutAndFoundByItsPersianDate) {
  Station s({2024, 3, 25, 7, 0, 0});
  Workstation& ws = s.open_browser();
  Obs first;  // 1 Farvardin 1403, 06 UTC
  save_report(ws, first);
  ASSERT_TRUE(ws.FrmPol.visible);
  EXPECT_FALSE(ws.FrmPol.Command2.enabled);
  ws.click(ws.FrmPol.Command3);
  EXPECT_NE(s.clipboard.text().find("ZCZC"), std::string::npos);
  EXPECT_NE(s.clipboard.text().find("12570 32704 10124="), std::string::npos);
  ws.click(ws.FrmPol.Command1);
  EXPECT_EQ(s.clipboard.text(), "");
  ASSERT_EQ(ws.active_screen(), &ws.FrmDisplayKashf);

  Obs second;
  second.day = "22";
  second.sday = "03";
  second.hour = "12";
  save_report(ws, second);
  ws.click(ws.FrmPol.Command1);
  EXPECT_EQ(trim(ws.FrmDisplayKashf.TXTYYMMDDTT.text), "24032212");

  // The first report, by its Persian date and hour.
  ws.click(ws.FrmDisplayKashf.search);
  FrmFind& f = ws.FrmFind;
  ASSERT_EQ(ws.active_screen(), &f);
  ws.type(f.TXTYEARsh, "1403");
  ws.choose(f.ComSH, "فروردين");
  ws.type(f.TXTDAYsh, "1");
  ws.type(f.txttime, "06");
  EXPECT_EQ(f.Txtfind.text, "24032006");
  ws.click(f.CmdFind);
  EXPECT_EQ(trim(ws.FrmDisplayKashf.TXTYYMMDDTT.text), "24032006");

  // A day with no report: the row stays.
  ws.take_messages();
  ws.click(ws.FrmDisplayKashf.search);
  ws.type(f.TXTDAYsh, "9");
  ws.click(f.CmdFind);
  EXPECT_EQ(trim(ws.FrmDisplayKashf.TXTYYMMDDTT.text), "24032006");
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"box: no record found. [not found]"});
}

TEST(FindAndCopy, CorrectedPastHoursReachTheNextReport) {
  Station s;
  Workstation& ws = s.start();
  ws.click(ws.FrmMain.Command4);
  ws.type(ws.FrmWP.Text5, "18.5");   // T12
  ws.type(ws.FrmWP.Text23, "881.2");  // QFE18B
  ws.click(ws.FrmWP.Command1);
  ws.click(ws.FrmMain.Command2);  // "Run"
  ws.click(ws.FrmDisplayKashf.newW);
  EXPECT_EQ(ws.FrmMain.txt12T.text, "18.5");
  EXPECT_EQ(ws.FrmMain.txtp18qfe.text, "881.2");
}

}  // namespace
}  // namespace obsdesk
