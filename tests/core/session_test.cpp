// One life of the entry screen: its opening, the hour box and the groups of the
// hour, the Enter walk, the remarks step, the re-edit and the observer's name.
#include "station/session.h"

#include <gtest/gtest.h>

#include "screens/record.h"
#include "core/textnum.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

// The entry screen with a report kind chosen, iR iX filled for the SYNOP kinds.
Desk& entry(test::Station& s, std::string_view kind = kMetar) {
  Desk& ws = s.open_entry();
  ws.FrmKashf.Text48.text = "12";
  if (ws.FrmKashf.Combo5.text != kind) ws.choose(ws.FrmKashf.Combo5, kind);
  return ws;
}

TEST(Session, OpeningPrimesTheForm) {
  test::Station s({2024, 3, 20, 5, 40, 0});
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  EXPECT_EQ(k.Text49.text + k.txtmin.text + k.Text16.text, "000");
  EXPECT_EQ(k.Combo3.text, kNoCloud);  // though its list has no such item
  EXPECT_FALSE(k.Frameh5.visible);     // the demo station reads the barometer
  EXPECT_EQ(k.TXTYYMMDDTT.text, "240320");
}

TEST(Session, TodaysPersianDateIsClearedOnTheTwentyNinthOfFebruary) {
  test::Station s({2024, 2, 29, 10, 0, 0});
  Desk& ws = s.open_entry();
  EXPECT_EQ(ws.FrmKashf.TXTDAYmi.text, "29");
  EXPECT_EQ(ws.FrmKashf.TXTYEARsh.text + ws.FrmKashf.TXTMONTHSH.text + ws.FrmKashf.TXTDAYsh.text, "");
}

TEST(Session, HourBoxTakesOneOrTwoDigitsUpTo23) {
  struct Case {
    const char* typed;
    const char* kept;
    bool refused;
  };
  const Case cases[] = {{"3", "3", false}, {"23", "23", false}, {"24", "00", false}, {"2a", "", true}};
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = entry(s);
    ws.take_messages();
    ws.type(ws.FrmKashf.Text1, c.typed);
    EXPECT_EQ(ws.FrmKashf.Text1.text, c.kept) << c.typed;
    EXPECT_EQ(ws.focused(), &ws.FrmKashf.Text1) << c.typed;
    const auto m = ws.take_messages();
    EXPECT_EQ(!m.empty() && m.back() == "FrmERR:      زمان را چــك نمـائيـــد", c.refused) << c.typed;
  }
}

// "1" for each control shown, "0" for each hidden, in the order given.
std::string shown(std::initializer_list<const Control*> controls) {
  std::string out;
  for (const Control* c : controls) out += c->visible ? '1' : '0';
  return out;
}

TEST(Session, GroupsShownByHour) {
  struct Case {
    const char* hour;
    const char* groups;  // extremes soil pan radiation night-wind total 06-06 past-6 rain
    const char* period;
    const char* nine_group;
  };
  const Case cases[] = {
      {"00", "000001011", "21-00", "92350"}, {"03", "110000001", "00-03", "90250"},
      {"3", "110000001", "00-03", "90250"},  {"06", "001000111", "03-06", "90550"},
      {"09", "010000001", "06-09", "90850"}, {"12", "000000011", "09-12", "91150"},
      {"15", "110000001", "12-15", "91450"}, {"18", "000100011", "15-18", "91750"},
      {"21", "000010001", "18-21", "92050"}, {"13", "000000000", "", "91250"},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = entry(s, kSynop);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text1, c.hour);
    EXPECT_EQ(shown({&k.Frame15, &k.Frame5, &k.Frame8, &k.Frame10, &k.Txttond, &k.Text51, &k.Text53, &k.txtpast6,
                     &k.Frame6}),
              c.groups)
        << c.hour;
    // The boxes that go with a group: the soil's code frame, the pan's second
    // frame, the sunshine, the maximum wind.
    EXPECT_EQ(shown({&ws.FrmCode.Frame12, &k.Frame9, &k.Txttimesun, &k.Txtmaxwind}),
              shown({&k.Frame5, &k.Frame8, &k.Frame10, &k.Txttond}))
        << c.hour;
    if (*c.period) {
      EXPECT_EQ(k.Labrain.text, c.period) << c.hour;
    }
    EXPECT_FALSE(k.FraTmaxS.visible) << c.hour;
    EXPECT_EQ(ws.FrmCode.Text87.text, c.nine_group) << c.hour;
  }
}

TEST(Session, EnteringTheHourNeedsAKindAndIrix) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  ws.choose(k.Combo5, kSynop);
  ws.take_messages();
  ws.focus_now(k.Text1);
  EXPECT_EQ(ws.focused(), &k.Combo5);
  EXPECT_EQ(ws.take_messages().back(), "FrmERR: را وارد نمـائيـــد  IRIX   ");
  ws.type(k.Combo5, "x");  // wiped: no kind
  ws.take_messages();
  ws.focus_now(k.Text1);
  EXPECT_EQ(ws.focused(), &k.Combo5);
  EXPECT_EQ(ws.take_messages().back(), "FrmERR: نــوع گــزارش را انـتـخـاب نـماييد");
}

TEST(Session, TwelveHourStationAtNightReadsOnlyTheDryBulb) {
  for (const char* hour : {"18", "00", "24"}) {
    test::Station s;
    Desk& ws = entry(s, kSynMet);
    FrmKashf& k = ws.FrmKashf;
    ws.FrmOption.Combo1.text = std::string(kStation12);
    ws.type(k.Text1, hour);
    EXPECT_TRUE(k.cmdsynop1218.visible) << hour;
    EXPECT_FALSE(k.Cmdsynop.visible) << hour;
    for (Control* c : Controls{&k.Text2, &k.Text4, &k.Text5, &k.Text7, &k.Text28, &k.Text14})
      EXPECT_FALSE(c->reachable()) << hour << c->name;
    EXPECT_TRUE(k.Text27.reachable()) << hour;
    ws.press_enter();
    EXPECT_EQ(ws.focused(), &k.Text27) << hour;
    EXPECT_EQ(k.Combo5.text, kSynop) << hour;
    EXPECT_FALSE(k.Command4.enabled) << hour;
  }
  test::Station s;
  Desk& ws = entry(s, kSynop);
  ws.FrmOption.Combo1.text = std::string(kStation12);
  ws.type(ws.FrmKashf.Text1, "15");
  EXPECT_FALSE(ws.FrmKashf.Frameh1.visible);
  EXPECT_TRUE(ws.FrmKashf.Cmdsynop.visible);
}

TEST(Session, RemarksOpenTheWeatherQuestion) {
  struct Case {
    std::string_view kind;
    const char* vis;
    const char* irix;
    const char* rh;
    bool asked;
    const char* tww;
  };
  const Case cases[] = {
      {kSynop, "", "12", "50", true, "1"},    {kSynop, "", "11", "85", false, "1"},
      {kSynop, "", "13", "85", true, "1"},    {kMetar, "8000", "", "50", true, ""},
      {kMetar, "5000", "", "50", false, ""},  {kMetar, "", "", "", false, ""},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = entry(s, c.kind);
    FrmKashf& k = ws.FrmKashf;
    k.Text48.text = c.irix;
    k.Text4.text = c.vis;
    k.Text31.text = c.rh;
    ws.focus_now(k.Text74);
    ws.take_messages();
    ws.press_enter();
    bool asked = false;
    for (const std::string& m : ws.take_messages()) asked = asked || m.rfind("? ", 0) == 0;
    EXPECT_EQ(asked, c.asked) << c.kind << c.vis << c.irix << c.rh;
    EXPECT_EQ(k.TWW.text, c.tww) << c.kind;
  }
}

TEST(Session, ObserverChosenAfterTheCoderOpensConfirmation) {
  test::Station s;
  Desk& ws = entry(s, kMetar);
  FrmKashf& k = ws.FrmKashf;
  ws.dbl_click(k.Command4);  // the pointer over the button (the run fails: nothing typed)...
  ws.METAR_coded = 1;        // ...as if it had coded...
  ws.dbl_click(k.Text44);    // ...and on
  EXPECT_EQ(k.Combo7.text, "نام ديدبان كشيك");
  ASSERT_EQ(k.Combo7.items.size(), 4u);  // the demo profile has four observers
  ws.type(k.Combo7, "x");
  EXPECT_EQ(k.Combo7.text, "        نام ديده بان  كشيك");
  EXPECT_FALSE(k.ZAKHIREH.enabled);
  ws.choose(k.Combo7, k.Combo7.items[0]);
  EXPECT_TRUE(k.ZAKHIREH.enabled);
}

// Confirmation opens only when every coder the report kind needs has run.
TEST(Session, ConfirmationWaitsForEveryCoderOfTheKind) {
  const struct {
    std::string_view kind;
    int synop, metar, speci;
    bool open;
  } cases[] = {
      {kSynMet, 1, 0, 0, false}, {kSynMet, 0, 1, 0, false}, {kSynMet, 1, 1, 0, true},
      {kSynop, 1, 0, 0, true},   {kSynop, 0, 1, 0, false},  {kMetar, 0, 1, 0, true},
      {kMetar, 1, 0, 1, false},  {kSpeci, 0, 1, 0, false},  {kSpeci, 0, 0, 1, true},
  };
  for (const auto& c : cases) {
    test::Station s;
    Desk& ws = entry(s, c.kind);
    FrmKashf& k = ws.FrmKashf;
    k.Combo7.items = {"OBSERVER"};
    ws.SYNOP_coded = c.synop;
    ws.METAR_coded = c.metar;
    ws.SPECI_coded = c.speci;
    ws.choose(k.Combo7, "OBSERVER");
    EXPECT_EQ(k.ZAKHIREH.enabled, c.open) << c.kind << c.synop << c.metar << c.speci;
  }
}

// The observer who types RH instead of the wet bulb does so for one report: once
// the entry screen has closed, the next report reads its wet bulb again.
TEST(Session, HumidityModeEndsWithTheEntryScreen) {
  test::Station s({2024, 3, 20, 2, 40, 0});
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  // A SYN & MET report up to the dry bulb, clear sky, T12 at hand.
  auto up_to_dry_bulb = [&](const char* hour, const char* tdry) {
    ws.choose(k.Combo5, kSynMet);
    k.Text48.text = "12";
    ws.type(k.Text1, hour);
    ws.press_enter();
    ws.set(k.Text2, "240");
    ws.set(k.Text3, "3");
    ws.set(k.Text4, "8000");
    ws.type(k.Text5, "0");
    ws.type(k.Text27, tdry);
    ws.set(k.txtt12, "6.0");
  };
  up_to_dry_bulb("03", "-3.0");
  s.asker.queue(true);  // the humidity is typed instead of the wet bulb
  ws.press_enter();
  ASSERT_EQ(ws.humidity_mode, 1);
  ASSERT_EQ(ws.focused(), &k.Text31);

  ws.unload(k);
  ws.show(k);
  up_to_dry_bulb("09", "4.0");
  ws.press_enter();
  ASSERT_EQ(ws.focused(), &k.Text28);
  ws.type(k.Text28, "1.5");
  ws.type(k.Text13, "15");
  ws.type(k.Text14, "883.2");
  EXPECT_EQ(ws.humidity_mode, 0);
  EXPECT_EQ(k.Text28.text, "1.5");  // read, not derived from the last report's RH
  EXPECT_EQ(k.Text31.text, "62.1");
}

}  // namespace
}  // namespace obsdesk
