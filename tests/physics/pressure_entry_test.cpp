// The barometer and humidity boxes of the entry screen, typed as an observer
// types them.
#include <gtest/gtest.h>

#include "checks/temperature_words.h"
#include "core/textnum.h"
#include "physics/barometer.h"
#include "physics/entry_fixture.h"

namespace obsdesk {
namespace {

using test::Entry;
using Nine = std::vector<std::string>;

TEST(PressureEntry, ObserverTypesBothStationCases) {
  {
    Entry e;
    e.enter(e.k.Text27, "20");
    EXPECT_EQ(e.focus(), "Text28");
    e.enter(e.k.Text28, "12");
    EXPECT_EQ(e.focus(), "Text13");
    e.enter(e.k.Text13, "20");
    EXPECT_EQ(e.focus(), "Text14");
    e.ws.type(e.k.Text14, "875.4");
    EXPECT_EQ(e.derived(), (Nine{"36.1", "-4", "871.4", "8.45", "999.1", "1005.4", "29.69", "1402.6", "4.5"}));
    EXPECT_EQ(e.k.Text29.fore_color, kWindowText);
    EXPECT_TRUE(e.messages().empty());
    e.ws.press_enter();
    EXPECT_EQ(e.kashf_focus(), "Text38");  // the tendency follows for the SYNOP kinds
    EXPECT_EQ(e.ws.active_screen(), &e.ws.FrmNTF);
  }
  {
    Entry e;
    e.coast();
    e.ws.set_text(e.k.txtt12, "10");
    e.s.asker.queue(false);  // below -2: no, the wet bulb is read
    e.enter(e.k.Text27, "-2.5");
    EXPECT_EQ(e.focus(), "Text28");
    EXPECT_EQ(e.ws.humidity_mode, 0);
    e.enter(e.k.Text28, "-3.1");
    e.enter(e.k.Text13, "15");
    e.ws.type(e.k.Text14, "1015.0");
    EXPECT_EQ(e.derived(), (Nine{"84.2", "-4", "1011", "4.28", "1013.6", "1013.2", "29.92", "1429.1", "-4.8"}));
  }
}

TEST(PressureEntry, MetarKindsShowNoQffNorH850) {
  for (std::string_view kind : {kMetar, kSpeci, kMetar30, kSynMet}) {
    Entry e(kind);
    e.ws.FrmMain.txtutcpast.text = "09";
    for (auto [box, text] : {std::pair{&e.k.Text27, "20"}, {&e.k.Text28, "12"}, {&e.k.Text13, "20"}})
      e.ws.set_text(*box, text);
    e.ws.type(e.k.Text14, "875.4");
    const bool metar = kind != kSynMet;
    EXPECT_EQ(e.k.Text21.text, metar ? "+++++" : "999.1") << kind;
    EXPECT_EQ(e.k.Text24.text, metar ? "+++++" : "1402.6") << kind;
    EXPECT_EQ(e.k.Text19.text, "1005.4") << kind;
    EXPECT_EQ(e.k.Text20.text, "29.69") << kind;
  }
}

// RH typed in place of the wet bulb: the wet bulb is derived, rounded, and the
// humidity shown is the one that rounded wet bulb gives back.
TEST(PressureEntry, HumidityModeDerivesTheWetBulb) {
  Entry e;
  e.ws.set_text(e.k.txtt12, "0");
  e.s.asker.queue(true);
  e.enter(e.k.Text27, "-5");
  EXPECT_EQ(e.ws.humidity_mode, 1);
  EXPECT_EQ(e.focus(), "Text31");
  EXPECT_FALSE(e.k.Text31.locked);
  e.enter(e.k.Text31, "80");
  EXPECT_TRUE(e.k.Text31.locked);
  EXPECT_EQ(e.focus(), "Text13");
  e.enter(e.k.Text13, "10");
  e.ws.type(e.k.Text14, "875.4");
  EXPECT_EQ(e.k.Text28.text, "-5.7");
  EXPECT_EQ(e.derived(), (Nine{"79.3", "-2.5", "872.9", "3.34", "1011.9", "1007", "29.74", "1400", "-8"}));
}

TEST(PressureEntry, BarographStationTakesTheStationPressureFromText41) {
  Entry e;
  e.barograph();
  e.enter(e.k.Text27, "20");
  EXPECT_TRUE(e.k.FraNegar.visible);
  e.enter(e.k.Text28, "12");
  EXPECT_EQ(e.focus(), "Text41");
  EXPECT_FALSE(e.k.Text14.visible);
  e.ws.type(e.k.Text41, "871.4");
  EXPECT_EQ(e.k.Text18.text, "");  // computed on leaving only
  e.ws.press_enter();
  EXPECT_EQ(e.kashf_focus(), "Text38");
  // Neither the reading of Text14 nor TP stands: the correction is 0.
  EXPECT_EQ(e.k.Text15.text, "0");
  EXPECT_EQ(e.k.Text18.text, "871.4");
  EXPECT_EQ(e.k.Text30.text, "8.45");
}

// "-" is a value not measured: the computation stops without a word.
TEST(PressureEntry, DashInAnyInputStopsWithoutAWord) {
  for (const char* box : {"Text27", "Text28", "Text13", "txtt12"}) {
    Entry e;
    for (auto [b, text] : {std::pair{&e.k.Text27, "20"}, {&e.k.Text28, "12"}, {&e.k.Text13, "20"}})
      e.ws.set_text(*b, text);
    e.ws.set_text(*e.ws.control(box), "-");
    e.messages();
    e.ws.type(e.k.Text14, "875.4");
    EXPECT_EQ(e.derived(), (Nine{"", "", "", "", "", "", "", "", "0"})) << box;
    EXPECT_EQ(e.k.Text29.fore_color, kButtonText) << box;
    EXPECT_TRUE(e.messages().empty()) << box;
  }
}

TEST(PressureEntry, ComputesAfterEachKeyInTheThermometers) {
  Entry e;
  for (auto [b, text] : {std::pair{&e.k.Text27, "20"}, {&e.k.Text28, "12"}, {&e.k.Text13, "20"}})
    e.ws.set_text(*b, text);
  e.ws.type(e.k.Text14, "875.4");
  e.ws.type(e.k.Text13, "25");  // each key released runs the routine again
  EXPECT_NE(e.k.Text18.text, "871.4");
  EXPECT_FALSE(e.k.Text18.text.empty());
  e.ws.type(e.k.txtt12, "18");
  EXPECT_FALSE(e.k.Text21.text.empty());
  e.ws.type(e.k.Text28, "");  // empty: nothing computed, nothing cleared
  EXPECT_FALSE(e.k.Text21.text.empty());
}

TEST(PressureEntry, NegativeVapourPressureEmptiesTheWetBulbAndKeepsTheRest) {
  Entry e;
  for (auto [b, text] : {std::pair{&e.k.Text27, "20"}, {&e.k.Text28, "12"}, {&e.k.Text13, "20"}})
    e.ws.set_text(*b, text);
  e.ws.type(e.k.Text14, "875.4");
  e.ws.set_text(e.k.Text27, "30");
  e.ws.set_text(e.k.Text28, "0.05");
  e.messages();
  e.ws.set_text(e.k.Text14, "875.5");
  EXPECT_EQ(e.k.Text28.text, "");
  EXPECT_EQ(e.k.Text21.text, "999.1");  // QFF of the call before
  EXPECT_EQ(e.k.Text29.text, "4.5");
  const auto m = e.messages();
  ASSERT_FALSE(m.empty());
  EXPECT_EQ(m.back(), std::string("FrmERR: ") + kMsgCheckWetBulb);
}

struct ReadingCase {
  const char* typed;
  std::vector<bool> answers;  // to the questions, in turn
  const char* text;           // what stands at the end
  std::vector<std::string> said;
};

TEST(PressureEntry, TypingChecksOfTheReading) {
  const std::string check = std::string("FrmERR: ") + words::kCheckPressure;
  const std::string low = std::string("FrmERR: ") + words::kPressureTooLow;
  const std::string high = std::string("FrmERR: ") + words::kPressureTooHigh;
  const std::string ask_no = std::string("? ") + words::kConfirmPressure + " -> no";
  const std::string ask_yes = std::string("? ") + words::kConfirmPressure + " -> yes";
  const ReadingCase cases[] = {
      {"875.4", {}, "875.4", {}},
      {".", {}, ".", {check}},
      {"8.", {}, "8.", {check}},
      {"87.", {}, "87.", {check}},
      {"8a", {}, "8a", {check}},
      {"a", {}, "a", {check}},
      {"875..", {}, "875..", {check}},
      {"840", {}, "", {low}},
      {"920", {}, "", {high}},
      {"855", {false}, "", {ask_no}},
      {"855.5", {true}, "855.5", {ask_yes}},
      {"102", {}, "102", {}},            // on the way to 1000 and more: no check
      {"1023", {}, "", {high}},          // now the upper limits count
      {"905", {true}, "905", {ask_yes}},
  };
  for (const ReadingCase& c : cases) {
    Entry e;
    e.k.Text13.text = "20";
    for (bool a : c.answers) e.s.asker.queue(a);
    e.ws.type(e.k.Text14, c.typed);
    EXPECT_EQ(e.k.Text14.text, c.text) << c.typed;
    EXPECT_EQ(e.messages(), c.said) << c.typed;
  }
}

TEST(PressureEntry, BarographReadingIsEmptiedOnRefusal) {
  Entry e;
  e.barograph();
  e.enter(e.k.Text27, "20");
  e.enter(e.k.Text28, "12");
  e.messages();
  e.ws.type(e.k.Text41, "8.");
  EXPECT_EQ(e.k.Text41.text, "");
  EXPECT_EQ(e.focus(), "Text41");
}

struct AttachedCase {
  const char* typed;
  bool answer;
  const char* text;
  const char* focus;
};

TEST(PressureEntry, AttachedThermometerOnEnter) {
  const AttachedCase cases[] = {
      {"20.26", true, "20.3", "Text14"}, {"46", true, "", "Text13"}, {"-6", true, "", "Text13"},
      {"42", false, "", "Text13"},       {"42", true, "42", "Text14"}, {"3", false, "", "Text13"},
      {"", true, "", "Text13"},
  };
  for (const AttachedCase& c : cases) {
    Entry e;
    e.s.asker.queue(c.answer);
    e.s.asker.queue(c.answer);  // asked again as the barometer box is entered
    e.enter(e.k.Text13, c.typed);
    EXPECT_EQ(e.k.Text13.text, c.text) << c.typed;
    EXPECT_EQ(e.focus(), c.focus) << c.typed;
  }
}

TEST(PressureEntry, EnteringTheReadingTestsTheAttachedThermometer) {
  struct Row {
    const char* tp;
    const char* said;
    const char* focus;
  } const rows[] = {
      {"", words::kEnterAttached, "Text13"},
      {"49", words::kTemperatureOutOfRange, "Text13"},  // above the air limit 48
      {"51", words::kAttachedOutOfRange, "Text13"},
      {"20", nullptr, "Text14"},
  };
  for (const Row& r : rows) {
    Entry e;
    e.k.Text13.text = r.tp;
    e.ws.focus_now(e.k.Text14);
    EXPECT_EQ(e.focus(), r.focus) << r.tp;
    const auto m = e.messages();
    if (r.said == nullptr) {
      EXPECT_TRUE(m.empty()) << r.tp;
    } else {
      ASSERT_FALSE(m.empty()) << r.tp;
      EXPECT_EQ(m.back(), std::string("FrmERR: ") + r.said) << r.tp;
    }
  }
}

TEST(PressureEntry, LeavingAnEmptyReadingReturnsToItAndEmptiesTheDerived) {
  Entry e;
  e.k.Text13.text = "20";
  e.ws.focus_now(e.k.Text14);
  e.k.Text15.text = "-4";
  e.ws.focus_now(e.k.Text27);
  EXPECT_EQ(e.focus(), "Text14");
  EXPECT_EQ(e.k.Text15.text, "");
}

TEST(PressureEntry, EnterInTheReadingByKindAndCloud) {
  struct Row {
    std::string_view kind;
    const char *reading, *cloud, *qfe, *focus;
  } const rows[] = {
      {kSynop, "875.4", "5", "", "Text38"}, {kSynMet, "875.4", "", "", "Text38"},
      {kSpeci, "875.4", "0", "", "Text74"}, {kSpeci, "875.4", "9", "", "Text74"},
      {kSpeci, "875.4", "TR", "871", "Text6"}, {kSpeci, "875.4", "5", "871", "Text6"},
      {kSpeci, "875.4", "5", "", "Text14"}, {kSpeci, "87", "0", "", "Text14"},
  };
  for (const Row& r : rows) {
    Entry e(r.kind);
    e.k.Text13.text = "20";
    e.k.Text14.text = r.reading;
    e.k.Text5.text = r.cloud;
    e.k.Text18.text = r.qfe;
    e.ws.focus_now(e.k.Text14);
    e.ws.press_enter();
    EXPECT_EQ(e.kashf_focus(), r.focus) << r.kind << " " << r.cloud;
  }
}

TEST(PressureEntry, RelativeHumidityTypedOutOfRangeIsEmptiedOnLeaving) {
  for (auto [typed, kept] : {std::pair{"105", ""}, {"0.1", ""}, {"100", "100"}, {"0.2", "0.2"}}) {
    Entry e;
    e.k.Text31.locked = false;
    e.ws.type(e.k.Text31, typed);
    e.ws.focus_now(e.k.Text13);
    EXPECT_EQ(e.k.Text31.text, kept) << typed;
    EXPECT_EQ(e.focus(), *kept ? "Text13" : "Text31") << typed;
    EXPECT_EQ(e.k.Text31.locked, false) << typed;
    EXPECT_TRUE(e.messages().empty()) << typed;
  }
}

TEST(PressureEntry, WetBulbPlausibility) {
  struct Row {
    const char *dry, *wet;
    bool refused;
  } const rows[] = {
      {"20", "20.2", false}, {"20", "20.3", true},  {"-3.2", "-3", false},
      {"-3.3", "-3.2", true}, {"-3.3", "-3.3", false}, {"5", "-", false},
  };
  for (const Row& r : rows) {
    Entry e;
    e.k.Text27.text = r.dry;
    e.enter(e.k.Text28, r.wet);
    EXPECT_EQ(e.k.Text28.text.empty(), r.refused) << r.dry << "/" << r.wet;
    EXPECT_EQ(e.focus(), r.refused ? "Text28" : "Text13") << r.dry << "/" << r.wet;
  }
}

}  // namespace
}  // namespace obsdesk
