// The air thermometers of the entry screen: typing, the Enter forms of the dry
// bulb and the humidity question, the checks on entry and leaving, the day's
// table, and the extremes against the hours before them.
#include <gtest/gtest.h>

#include "checks/limits.h"
#include "checks/temperature_words.h"
#include "physics/entry_fixture.h"
#include "screens/weather_tables.h"

namespace obsdesk {
namespace {

using test::Entry;

std::string panel(const char* words) { return std::string("FrmERR: ") + words; }

TEST(Thermometer, TypingRule) {
  for (const char* good : {"", "-.", "-12.5", "12.3."}) EXPECT_TRUE(thermometer_text_ok(good, false)) << good;
  for (const char* bad : {"1.2.", "..", "123456", "/", "12,5"}) EXPECT_FALSE(thermometer_text_ok(bad, false)) << bad;
  EXPECT_TRUE(thermometer_text_ok("/", true));
  EXPECT_FALSE(thermometer_text_ok("//", true));

  Entry e;
  e.ws.type(e.k.Text27, "2a");
  EXPECT_EQ(e.k.Text27.text, "");
  EXPECT_EQ(e.focus(), "Text27");
  EXPECT_EQ(e.messages(), std::vector<std::string>{panel(words::kCheckTemperature)});
}

// Above 3 degrees, snow or ice in the present weather asks for a confirmation.
TEST(Thermometer, DryBulbAboveThreeWithSnowIsAsked) {
  struct Row {
    int ww;
    const char* typed;
    bool asked;
  } const rows[] = {{71, "5", true},   {71, "3", false},  {94, "12", true},  {61, "12", false}, {-1, "12", false},
                    // The edges of the snow-and-ice set: 68 to 79, 83 to 86, 88, 93, 94.
                    {67, "5", false},  {68, "5", true},   {79, "5", true},   {80, "5", false},  {82, "5", false},
                    {83, "5", true},   {86, "5", true},   {87, "5", false},  {88, "5", true},   {89, "5", false},
                    {92, "5", false},  {93, "5", true},   {95, "5", false}};
  for (const Row& r : rows) {
    Entry e;
    if (r.ww >= 0) e.k.Image1.text = std::string(present_weather_picture(r.ww));
    e.s.asker.queue(false);
    e.ws.type(e.k.Text27, r.typed);
    EXPECT_EQ(e.k.Text27.text, r.asked ? "" : r.typed) << r.ww << " " << r.typed;
    EXPECT_EQ(e.messages().empty(), !r.asked) << r.ww << " " << r.typed;
  }
}

struct DryEnterCase {
  std::string_view kind;
  bool twelve;
  const char* hour;
  const char* tdry;
  int answer;  // -1: no question expected; 0 no; 1 yes
  const char* text;
  const char* focus;
  int mode;
};

TEST(Thermometer, DryBulbEnterByStationAndHour) {
  const DryEnterCase cases[] = {
      {kSynop, true, "21", "-1.5", 1, "-1.5", "Text31", 1},  {kSynop, true, "21", "-1.5", 0, "-1.5", "Text18", 0},
      {kSynop, true, "00", "-0.5", -1, "-0.5", "Text18", 0},  {kSynop, true, "21", "20.26", -1, "20.3", "Text18", 0},
      {kSynop, true, "21", "", -1, "", "Text27", 0},          {kSynop, true, "21", "50", -1, "", "Text27", 0},
      {kSynop, true, "12", "-1.5", -1, "-1.5", "Text28", 0},  {kSynop, false, "21", "-1.5", -1, "-1.5", "Text28", 0},
      {kSynop, false, "12", "-2.5", 1, "-2.5", "Text31", 1},
      {kSpeci, false, "", "-2.5", -1, "-2.5", "Text28", 0},  // without the time nothing is asked
  };
  for (const DryEnterCase& c : cases) {
    Entry e(c.kind, c.hour);
    if (c.twelve) e.twelve_hour();
    if (c.answer >= 0) e.s.asker.queue(c.answer == 1);
    e.enter(e.k.Text27, c.tdry);
    const std::string where = std::string(c.hour) + " " + c.tdry;
    EXPECT_EQ(e.k.Text27.text, c.text) << where;
    EXPECT_EQ(e.focus(), c.focus) << where;
    EXPECT_EQ(e.ws.humidity_mode, c.mode) << where;
    bool asked = false;
    for (const std::string& m : e.messages()) asked |= m.rfind("? ", 0) == 0;
    EXPECT_EQ(asked, c.answer >= 0) << where;
    if (std::string(c.focus) == "Text18") {
      EXPECT_FALSE(e.k.Text18.locked) << where;
    }
  }
}

TEST(Thermometer, MetarFollowsTheLastMainHour) {
  struct Row {
    std::string_view kind;
    const char *past, *hour;
    bool refused;
  } const rows[] = {
      {kMetar, "09", "12", false}, {kMetar, "09", "13", true}, {kMetar, "21", "00", false}, {kSpeci, "09", "13", false},
  };
  for (const Row& r : rows) {
    Entry e(r.kind, r.hour);
    e.ws.FrmMain.txtutcpast.text = r.past;
    e.ws.focus_now(e.k.Text27);
    EXPECT_EQ(e.k.Text1.text, r.refused ? "" : r.hour) << r.past << " " << r.hour;
    EXPECT_EQ(e.focus(), r.refused ? "Text1" : "Text27") << r.past << " " << r.hour;
  }
}

TEST(Thermometer, DryBulbEntryPreparesTheReport) {
  Entry e(kSynop, "3");
  e.k.Text15.text = "-4";
  e.ws.set_text(e.k.txtt12, "5");
  e.ws.focus_now(e.k.Text27);
  EXPECT_EQ(e.k.Text1.text, "03");
  EXPECT_EQ(e.k.Text15.text, "");
  EXPECT_EQ(e.k.txtt12.text, "05");
  EXPECT_EQ(e.focus(), "Text27");

  Entry fog;
  fog.k.Text5.text = "9";
  fog.ws.focus_now(fog.k.Text27);
  EXPECT_EQ(fog.focus(), "Text12");
  EXPECT_EQ(fog.messages(), std::vector<std::string>{panel(words::kEnterVerticalVisibility)});

  for (auto [t12, answer, kept] : {std::tuple{"50", true, ""}, {"45", false, ""}}) {
    Entry old;
    old.ws.set_text(old.k.txtt12, t12);
    old.s.asker.queue(answer);
    old.ws.focus_now(old.k.Text27);
    EXPECT_EQ(old.k.txtt12.text, kept) << t12;
    EXPECT_EQ(old.focus(), *kept ? "Text27" : "txtt12") << t12;
  }
}

TEST(Thermometer, LeavingTheDryBulbWritesTheDayTable) {
  Entry e(kSynMet, "12");
  FrmMain& m = e.ws.FrmMain;
  for (std::size_t i = 0; i < 8; ++i) m.T[i]->text = std::to_string(10 + i);
  e.ws.type(e.k.Text27, "21.5");
  e.ws.focus_now(e.k.Text13);
  for (std::size_t i = 0; i < 8; ++i)
    EXPECT_EQ(m.TB[i]->text, i == 4 ? "21.5" : std::to_string(10 + i)) << i;

  Entry synop(kSynop, "12");  // a 24-hour station keeps no table on SYNOP
  const std::string before = synop.ws.FrmMain.txt12TB.text;
  synop.ws.type(synop.k.Text27, "21.5");
  synop.ws.focus_now(synop.k.Text13);
  EXPECT_EQ(synop.ws.FrmMain.txt12TB.text, before);

  Entry demand(kSynop, "12");
  demand.ws.set_text(demand.k.txtt12, "");
  demand.ws.type(demand.k.Text27, "20");
  demand.ws.focus_now(demand.k.Text13);
  EXPECT_EQ(demand.focus(), "txtt12");
  EXPECT_EQ(demand.messages(), std::vector<std::string>{panel(words::kEnterTemperature12)});
}

TEST(Thermometer, WetBulbEntryAndLeaving) {
  Entry e;
  e.k.Text27.text = "45";
  e.s.asker.queue(false);
  e.ws.focus_now(e.k.Text28);  // the dry bulb is tested again
  EXPECT_EQ(e.k.Text27.text, "");
  EXPECT_EQ(e.focus(), "Text27");

  struct Row {
    const char* wet;
    bool answer;
    const char *text, *focus;
  } const rows[] = {{"39", true, "", "Text28"}, {"33", false, "", "Text28"}, {"12.26", true, "12.3", "Text13"}};
  for (const Row& r : rows) {
    Entry w;
    w.s.asker.queue(r.answer);
    w.ws.type(w.k.Text28, r.wet);
    w.ws.focus_now(w.k.Text74);
    EXPECT_EQ(w.k.Text28.text, r.text) << r.wet;
    EXPECT_EQ(w.focus(), r.focus) << r.wet;
  }
}

TEST(Thermometer, TemperatureTwelveHoursBeforeOnEnter) {
  for (auto [t12, answer, kept, focus] :
       {std::tuple{"45", false, "", "txtt12"}, {"45", true, "45", "Text28"}}) {
    Entry e;
    e.s.asker.queue(answer);
    e.enter(e.k.txtt12, t12);
    EXPECT_EQ(e.k.txtt12.text, kept) << t12;
    EXPECT_EQ(e.focus(), focus) << t12;
  }
}

struct ExtremeCase {
  const char* hour;
  bool maximum;
  const char *tdry, *tmin, *typed;  // TDRY and TMIN3 standing, and the text typed
  const char* said;          // words on the panel, nullptr for none
  const char* text;          // the box at the end
  const char* focus;
};

TEST(Thermometer, ExtremesAgainstTheDryBulbAndTheHoursBefore) {
  const ExtremeCase cases[] = {
      {"03", false, "13", "", "11", "مقدار دماي حداقل را با دماي ساعت 00 چــك نمـائيد", "8", "Text59"},
      {"03", false, "13", "", "7", nullptr, "7", "Text13"},
      {"03", false, "13", "", "14", words::kCheckTemperature, "", "Text59"},
      {"03", false, "13", "", "-30", words::kExtremeOutOfRange, "", "Text59"},
      {"03", true, "9", "7", "11", "مقدار دماي حداكثر را با دماي ساعت 21 چــك نمـائيد", "", "Text60"},
      {"03", true, "9", "7", "16.04", nullptr, "16", "Text13"},
      {"03", true, "9", "", "16", words::kEnterMaximum, "16", "Text59"},
      {"03", true, "9", "7", "6", words::kMinimumAboveMaximum, "", "Text60"},
      {"03", true, "9", "7", "8", words::kCheckMaximum, "", "Text60"},
      {"15", true, "9", "7", "19", "مقدار دماي حداكثر را با دماي ساعت 12 چــك نمـائيد", "", "Text60"},
  };
  for (const ExtremeCase& c : cases) {
    Entry e(kSynop, c.hour);
    // The day: 00 10, 03 9, 06 8, 09 18, 12 22, 15 20, 18 15, 21 12.
    const char* day[] = {"10", "9", "8", "18", "22", "20", "15", "12"};
    for (std::size_t i = 0; i < 8; ++i) e.ws.FrmMain.T[i]->text = day[i];
    e.k.Text27.text = c.tdry;
    e.k.Text59.text = c.tmin;
    Control& box = c.maximum ? static_cast<Control&>(e.k.Text60) : e.k.Text59;
    e.ws.type(box, c.typed);
    e.ws.focus_now(e.k.Text13);
    const std::string where = std::string(c.hour) + (c.maximum ? " max " : " min ") + c.typed;
    EXPECT_EQ(box.text, c.text) << where;
    EXPECT_EQ(e.focus(), c.focus) << where;
    const auto m = e.messages();
    if (c.said == nullptr) {
      EXPECT_TRUE(m.empty()) << where;
    } else {
      ASSERT_FALSE(m.empty()) << where;
      EXPECT_EQ(m.back(), panel(c.said)) << where;
    }
  }
}

TEST(Thermometer, ExtremesWalkToTheRain) {
  Entry e(kSynop, "03");
  for (TextBox* t : e.ws.FrmMain.T) t->text.clear();
  e.k.Text5.text = "5";
  e.enter(e.k.Text59, "7");
  EXPECT_EQ(e.k.Text22.text, "0");  // the high cloud height made "0" for its test
  EXPECT_EQ(e.focus(), "Text60");
  e.enter(e.k.Text60, "16");
  EXPECT_EQ(e.focus(), "Text50");
}

TEST(Thermometer, StationPressureTypedByHand) {
  Entry e;
  e.k.Text18.locked = false;
  e.ws.type(e.k.Text18, "87a");
  EXPECT_EQ(e.k.Text18.text, "");
  e.ws.type(e.k.Text18, "871.4");
  EXPECT_EQ(e.k.Text18.text, "871.4");
}

}  // namespace
}  // namespace obsdesk
