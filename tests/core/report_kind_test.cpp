// The report kind in Combo5 shows and locks the groups of the entry screen.
#include "station/report_kind.h"

#include <gtest/gtest.h>

#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

struct Expected {
  std::string_view kind;
  bool text1, txt1;     // time box
  bool irix_open;       // Text48 enabled and not locked
  bool tendency;        // Text25, Text38, Label17 shown
  bool synop_locked;    // Text39, Text40, Text19, Text20, Text26, TXTGUSTY, CMbMAX, CMbMIN
  bool frame12, frame17, rain_and_extremes, summary, nlc, masks, speci_text;
  bool panel1, panel2, panel7;
  bool cmdsynop, cmd4_shown, cmd4_enabled, cmd8_enabled;
  long t12_colour;
  const char* focus;  // "" when it stays
};

TEST(ReportKind, ShowsAndLocksTheGroupsOfItsKind) {
  const Expected table[] = {
      {kSynop, 1, 0, 1, 1, 1, 0, 1, 1, 1, 0, 1, 0, 0, 0, 1, 1, 1, 0, 0, kWindowText, ""},
      {kSynMet, 1, 0, 1, 1, 0, 1, 1, 1, 1, 1, 0, 0, 1, 0, 1, 1, 1, 1, 0, kWindowText, ""},
      {kMetar, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 1, 0, 0, 0, 1, 1, 0, kWindowBack, "FrmKashf.Text1"},
      {kMetar30, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 1, 0, 0, 0, 1, 1, 0, kWindowBack, "FrmKashf.txt1"},
      {kSpeci, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 0, 1, 0, 0, 0, 0, 1, kWindowBack, "FrmKashf.txt1"},
  };
  for (const Expected& e : table) {
    test::Station s;
    Desk& ws = s.start();
    ws.show(ws.FrmKashf);
    FrmKashf& k = ws.FrmKashf;
    ws.focus_now(k.Combo5);
    ws.set_text(k.Combo5, "");  // the screen opens on "METAR    ": make the choice a change
    ws.choose(k.Combo5, e.kind);
    const std::string kind(e.kind);
    EXPECT_EQ(k.Text1.visible, e.text1) << kind;
    EXPECT_EQ(k.txt1.visible, e.txt1) << kind;
    EXPECT_EQ(k.Text48.enabled && !k.Text48.locked, e.irix_open) << kind;
    for (Control* c : Controls{&k.Text25, &k.Text38, &k.Label17}) EXPECT_EQ(c->visible, e.tendency) << kind << c->name;
    for (Control* c : Controls{&k.Text39, &k.Text40, &k.Text19, &k.Text20, &k.Text26, &k.TXTGUSTY, &k.CMbMAX, &k.CMbMIN})
      EXPECT_EQ(c->locked, e.synop_locked) << kind << c->name;
    EXPECT_EQ(k.Frame12.visible, e.frame12) << kind;
    EXPECT_EQ(k.Frame17.visible, e.frame17) << kind;
    EXPECT_EQ(k.Frame6.visible, e.rain_and_extremes) << kind;
    EXPECT_EQ(k.Frame15.visible, e.rain_and_extremes) << kind;
    for (Control* c : Controls{&k.Frame16, &k.txtmin, &k.TXT_QNT}) EXPECT_EQ(c->visible, e.summary) << kind << c->name;
    EXPECT_EQ(k.Txt_NLC.visible, e.nlc) << kind;
    EXPECT_EQ(k.Cmb_NLC.visible, e.nlc) << kind;
    for (Control* m : Controls{&k.Framesyn1, &k.Framesyn2, &k.Framesyn3}) EXPECT_EQ(m->visible, e.masks) << kind;
    EXPECT_EQ(k.Text39.reachable(), !e.masks) << kind;
    EXPECT_EQ(k.TXTSPE.visible, e.speci_text) << kind;
    EXPECT_EQ(k.TXTMET.visible, !e.speci_text) << kind;
    EXPECT_EQ(ws.FrmCode.Frame1.visible, e.panel1) << kind;
    EXPECT_EQ(ws.FrmCode.Frame2.visible, e.panel2) << kind;
    EXPECT_EQ(ws.FrmCode.Frame7.visible, e.panel7) << kind;
    EXPECT_EQ(k.Cmdsynop.enabled, e.cmdsynop) << kind;
    EXPECT_EQ(k.Command4.visible, e.cmd4_shown) << kind;
    EXPECT_EQ(k.Command4.enabled, e.cmd4_enabled) << kind;
    EXPECT_TRUE(k.Command8.visible) << kind;
    EXPECT_EQ(k.Command8.enabled, e.cmd8_enabled) << kind;
    EXPECT_EQ(k.txtt12.fore_color, e.t12_colour) << kind;
    const std::string focus = *e.focus ? e.focus : "FrmKashf.Combo5";
    // The SYNOP kinds open the iR iX board over the entry screen.
    EXPECT_EQ(ws.FrmIRIX.visible, is_synop_kind(report_kind_of(e.kind))) << kind;
    ASSERT_NE(k.active, nullptr);
    EXPECT_EQ(k.active->full_name(), focus) << kind;
    if (!is_synop_kind(report_kind_of(e.kind))) {
      for (Control* f : Controls{&k.Frame5, &k.Frame8, &k.Frame9, &k.Frame10}) EXPECT_FALSE(f->visible) << kind;
    }
  }
}

// The kinds are stored and shown as their exact texts: each list item reads as
// its kind and gives back the same characters, and a text padded or cut any
// other way is no kind at all.
TEST(ReportKind, TextsConvertBothWaysToTheCharacter) {
  for (std::string_view text : kReportKinds) {
    const ReportKind kind = report_kind_of(text);
    EXPECT_NE(kind, ReportKind::None) << text;
    EXPECT_EQ(report_kind_text(kind), text);
  }
  for (std::string_view text : {kStation12, kStation18, kStation24, kStation6}) {
    const StationKind kind = station_kind_of(text);
    EXPECT_NE(kind, StationKind::None) << text;
    EXPECT_EQ(station_kind_text(kind), text);
  }
  for (std::string_view text : {"", "SYNOP", "METAR", "SYN & MET ", "synop    ", "METAR(30)"})
    EXPECT_EQ(report_kind_of(text), ReportKind::None) << "[" << text << "]";
  for (std::string_view text : {"", "ايستگاه 12", " ايستگاه 24 ساعته"})
    EXPECT_EQ(station_kind_of(text), StationKind::None) << "[" << text << "]";
  EXPECT_EQ(report_kind_text(ReportKind::None), "");
  EXPECT_EQ(station_kind_text(StationKind::None), "");
}

TEST(ReportKind, ATypedTextThatIsNoKindIsWiped) {
  test::Station s;
  Desk& ws = s.start();
  ws.show(ws.FrmKashf);
  ws.type(ws.FrmKashf.Combo5, "SYN");
  EXPECT_EQ(ws.FrmKashf.Combo5.text, "");
  EXPECT_EQ(ws.focused(), &ws.FrmKashf.Combo5);
}

TEST(ReportKind, HiddenGroupsKeepTheirValues) {
  test::Station s;
  Desk& ws = s.start();
  ws.show(ws.FrmKashf);
  ws.choose(ws.FrmKashf.Combo5, kSynop);
  ws.set_text(ws.FrmKashf.Text25, "1.2");
  ws.choose(ws.FrmKashf.Combo5, kMetar);
  EXPECT_FALSE(ws.FrmKashf.Text25.visible);
  EXPECT_EQ(ws.FrmKashf.Text25.text, "1.2");
}

}  // namespace
}  // namespace obsdesk
