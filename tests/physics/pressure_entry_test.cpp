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

// The Tehran readings of the dry, wet and attached thermometers.
void thermometers(Entry& e) {
  for (auto [b, text] : {std::pair{&e.k.Text27, "20"}, {&e.k.Text28, "12"}, {&e.k.Text13, "20"}}) e.ws.set_text(*b, text);
}

// "-" is a value not measured: the computation stops without a word.
TEST(PressureEntry, DashInAnyInputStopsWithoutAWord) {
  for (const char* box : {"Text27", "Text28", "Text13", "txtt12"}) {
    Entry e;
    thermometers(e);
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
  thermometers(e);
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
  thermometers(e);
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
  // The demo station's limits: 850 and 910 refuse, 860 and 900 ask.
  const ReadingCase cases[] = {
      {"875.4", {}, "875.4", {}},        {".", {}, ".", {check}},        {"87.", {}, "87.", {check}},
      {"8a", {}, "8a", {check}},         {"875..", {}, "875..", {check}},
      {"849", {}, "", {low}},            {"850", {false}, "", {ask_no}}, {"855.5", {true}, "855.5", {ask_yes}},
      {"1023", {}, "", {high}},          {"905", {true}, "905", {ask_yes}},
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
      {"42", false, "", "Text13"},       {"42", true, "42", "Text14"}, {"", true, "", "Text13"},
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
      {kSynMet, "875.4", "", "", "Text38"},     {kSpeci, "875.4", "9", "", "Text74"},
      {kSpeci, "875.4", "TR", "871", "Text6"}, {kSpeci, "875.4", "5", "", "Text14"},
      {kSpeci, "87", "0", "", "Text14"},
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
  for (auto [typed, kept] : {std::pair{"101", ""}, {"0.1", ""}, {"100", "100"}, {"0.2", "0.2"}}) {
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
      {"20", "20.2", false}, {"20", "20.3", true}, {"-3.2", "-3", false}, {"-3.3", "-3.2", true}, {"5", "-", false},
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
