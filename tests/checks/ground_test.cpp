// Soil, ground minimum, snow, the evaporation pan, wind run, sunshine and
// radiation boxes.
#include <gtest/gtest.h>

#include "checks/temperature.h"
#include "checks/temperature_words.h"
#include "coders/coder_common.h"
#include "physics/entry_fixture.h"

namespace obsdesk {
namespace {

using test::Entry;

std::string panel(const char* words) { return std::string("FrmERR: ") + words; }

// The boxes of the hour groups, shown as the hour rules would show them.
void show_groups(Entry& e) {
  for (Control* f : Controls{&e.k.Frame5, &e.k.Frame8, &e.k.Frame9, &e.k.Frame10}) f->visible = true;
  e.k.Txttimesun.visible = true;
}

// The entry check and the coder share these figures; the coder reads strictly,
// so a malformed minimum stops the coding instead of giving "00".
TEST(Ground, MinimumFiguresForTheGroundGroup) {
  struct Row {
    const char* text;
    bool read;
    const char *sign, *value;
  } const rows[] = {
      {"-3", true, "1", "03"},  {"-15", true, "1", "15"},  {"3", true, "0", "03"},  {"-2.5", true, "1", "03"},
      {"2.5", true, "0", "03"}, {"0", true, "0", "00"},    {"-0.4", true, "1", "00"}, {"-12.5", true, "1", "13"},
      {" 2.5 ", true, "0", "03"}, {"/", false, "", ""},    {"-", false, "", ""},    {"-.", false, "", ""},
      {"", false, "", ""},
  };
  for (const Row& r : rows) {
    for (NumberReader read : {NumberReader{val}, NumberReader{coder_number}}) {
      const auto g = ground_minimum(r.text, read);
      ASSERT_EQ(g.has_value(), r.read) << r.text;
      if (!g) continue;
      EXPECT_EQ(g->sign, r.sign) << r.text;
      EXPECT_EQ(g->temp, r.value) << r.text;
    }
  }
  EXPECT_THROW(ground_minimum("2x", coder_number), CoderError);
  EXPECT_THROW(snow_depth_figures("5 cm", coder_number), CoderError);
}

TEST(Ground, SnowDepthFigures) {
  for (auto [text, sss] : {std::pair{"", ""}, {"0", "997"}, {"/", "997"}, {"//", "997"}, {"5", "005"}, {"2.5", "002"},
                           {"998", "998"}, {"999", "999"}})
    EXPECT_EQ(snow_depth_figures(text), sss) << text;
}

// One box typed and left: what stands, where the focus is, the last word on
// the panel. The state of ground is set, as the snow box asks for it.
TEST(Ground, BoxesTypedAndLeft) {
  struct Row {
    const char *hour, *box, *typed;
    int answer;  // -1: no question; 0 no; 1 yes
    const char *kept, *focus;
    const char* said;  // the last message's words, nullptr: not looked at
  } const rows[] = {
      // ground minimum: the decimal point is refused, the typing goes on
      {"06", "Text68", "2.5", -1, "5", "Text13", nullptr},
      {"06", "Text68", "70", -1, "", "Text68", nullptr},
      {"06", "Text68", "/", -1, "/", "Text13", nullptr},
      // soil depths by their limit rows
      {"03", "Text32", "70", -1, "", "Text32", nullptr},
      {"03", "Text32", "60", 1, "60", "Text13", nullptr},
      {"03", "Text34", "-12", -1, "", "Text34", nullptr},
      {"03", "Text37", "45", -1, "", "Text37", nullptr},
      {"03", "Text37", "38", 0, "", "Text37", nullptr},
      {"03", "Text36", "-", -1, "-", "Text13", nullptr},
      {"03", "Text33", "1a", -1, "", "Text13", nullptr},
      // evaporation against its limits
      {"06", "Text66", "35", 1, "", "Text66", nullptr},
      {"06", "Text66", "20", 0, "", "Text66", nullptr},
      // radiation data, wind run and sunshine
      {"18", "Text72", "//", -1, "//", "Text13", ""},
      {"18", "Text73", "1.5", -1, "5", "Text13", words::kCheckData},
      {"18", "Text70", "x", -1, "", "Text13", words::kCheckData},
      {"18", "Text67", "1234", -1, "1234", "Text13", ""},
      {"18", "Text67", "12a", -1, "", "Text13", words::kCheckWindRun},
      {"18", "Txttimesun", "12.5", -1, "12.5", "Text13", ""},
      {"18", "Txttimesun", "19", -1, "", "Txttimesun", words::kCheckSunshine},
      {"18", "Txttimesun", "1a", -1, "", "Txttimesun", words::kCheckSunshine},
  };
  for (const Row& r : rows) {
    Entry e(kSynop, r.hour);
    show_groups(e);
    e.ws.FrmDisplayKashf.Text52.text = "3";
    if (r.answer >= 0) e.s.asker.queue(r.answer == 1);
    Control& box = *e.ws.control(r.box);
    e.ws.type(box, r.typed);
    e.ws.focus_now(e.k.Text13);
    SCOPED_TRACE(std::string(r.box) + " " + r.typed);
    EXPECT_EQ(box.text, r.kept);
    EXPECT_EQ(e.focus(), r.focus);
    const auto m = e.messages();
    if (r.said != nullptr) {
      EXPECT_EQ(m.empty() ? "" : m.back(), *r.said ? panel(r.said) : "");
    }
  }
}

TEST(Ground, MinimumOnTheScreen) {
  Entry e(kSynop, "06");
  show_groups(e);
  e.ws.type(e.k.Text68, "-3");
  e.ws.focus_now(e.k.Text13);
  EXPECT_EQ(e.ws.GroundSign, "1");
  EXPECT_EQ(e.ws.GroundTemp, "03");

  // The soft pair is asked as the snow box is entered; No sends the focus back.
  Entry s(kSynop, "06");
  show_groups(s);
  s.ws.FrmDisplayKashf.Text52.text = "3";
  s.enter(s.k.Text68, "-15");
  EXPECT_EQ(s.focus(), "Text69");
  s.s.asker.queue(false);
  s.ws.focus_now(s.k.Text63);
  EXPECT_EQ(s.k.Text68.text, "");
  EXPECT_EQ(s.focus(), "Text68");
}

TEST(Ground, SnowNeedsTheStateOfGround) {
  Entry e(kSynop, "06");
  show_groups(e);
  e.ws.type(e.k.Text69, "5");
  EXPECT_EQ(e.messages().front(), panel(words::kSetStateOfGround));

  struct Row {
    const char* snow_group;  // FrmCode.Text92 as the picker left it
    const char *typed, *kept, *depth;
  } const rows[] = {
      {"     ", "5", "", ""},  {"     ", "0", "0", "997"}, {"     ", "/", "/", "997"},
      {"4512", "5", "5", "005"},
  };
  for (const Row& r : rows) {
    Entry s(kSynop, "06");
    show_groups(s);
    s.ws.FrmDisplayKashf.Text52.text = "3";
    s.ws.FrmCode.Text92.text = r.snow_group;
    s.ws.type(s.k.Text69, r.typed);
    EXPECT_EQ(s.k.Text69.text, r.kept) << r.snow_group << " " << r.typed;
    EXPECT_EQ(s.ws.SnowDepth, r.depth) << r.snow_group << " " << r.typed;
  }
}

TEST(Ground, PanThermometers) {
  struct Row {
    const char *min, *max;  // typed in turn, the focus then leaving the maximum
    std::vector<bool> answers;
    const char *min_kept, *max_kept;
    const char* said;
  } const rows[] = {
      {"/", "/", {}, "/", "/", nullptr},
      {"10", "25", {}, "10", "25", nullptr},
      {"45", "", {}, "", "", words::kExtremeOutOfRange},
      {"25", "20", {false}, "", "", nullptr},  // asked again as the maximum is entered
      {"10", "8", {}, "10", "", words::kPanMinimumAboveMaximum},
      {"10", "35", {false}, "10", "", nullptr},
  };
  for (const Row& r : rows) {
    Entry e(kSynop, "06");
    show_groups(e);
    for (bool a : r.answers) e.s.asker.queue(a);
    e.ws.type(e.k.Text63, r.min);
    if (*r.max) e.ws.type(e.k.Text64, r.max);
    e.ws.focus_now(e.k.Text67);
    EXPECT_EQ(e.k.Text63.text, r.min_kept) << r.min << " " << r.max;
    EXPECT_EQ(e.k.Text64.text, r.max_kept) << r.min << " " << r.max;
    const auto m = e.messages();
    bool told = r.said == nullptr;
    for (const std::string& line : m) told |= r.said != nullptr && line == panel(r.said);
    EXPECT_TRUE(told) << r.min << " " << r.max;
  }

  Entry e(kSynop, "06");
  show_groups(e);
  e.ws.type(e.k.Text64, "20");
  e.ws.focus_now(e.k.Text67);
  EXPECT_EQ(e.focus(), "Text63");
  EXPECT_EQ(e.messages().back(), panel(words::kEnterPanMinimum));
}

TEST(Ground, EvaporationFromTheWaterAndBack) {
  struct Row {
    const char* rain;  // Text53, the rain of 06 to 06
    const char* box;   // typed in Text65 (water) or Text66 (evaporation)
    const char* typed;
    const char *water, *evaporation;
    const char* said;
  } const rows[] = {
      {"0", "Text65", "114.3", "114.3", "0.1", nullptr},
      {"2.5", "Text65", "1142.7", "1142.7", "3.5", nullptr},
      {"0", "Text66", "1.0", "1143", "1.0", nullptr},
      {"", "Text66", "1.0", "", "1.0", nullptr},
      {"5", "Text66", "2", "-3428", "2", words::kNegativeEvaporation},
      {"/", "Text66", "2", "/", "2", nullptr},
      {"0", "Text66", "1a", "1143", "", words::kCheckWater},
  };
  for (const Row& r : rows) {
    Entry e(kSynop, "06");
    show_groups(e);
    e.ws.set_text(e.k.Text53, r.rain);
    e.ws.type(*e.ws.control(r.box), r.typed);
    const std::string where = std::string(r.rain) + " " + r.box + " " + r.typed;
    EXPECT_EQ(e.k.Text65.text, r.water) << where;
    EXPECT_EQ(e.k.Text66.text, r.evaporation) << where;
    const auto m = e.messages();
    if (r.said != nullptr) {
      ASSERT_FALSE(m.empty()) << where;
      EXPECT_EQ(m.back(), panel(r.said)) << where;
    }
  }
}

}  // namespace
}  // namespace obsdesk
