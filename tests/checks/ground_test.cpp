// Soil, ground minimum, snow, the evaporation pan, wind run, sunshine and
// radiation boxes.
#include <gtest/gtest.h>

#include "checks/temperature.h"
#include "checks/temperature_words.h"
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

TEST(Ground, MinimumFiguresForTheGroundGroup) {
  struct Row {
    const char* text;
    bool read;
    const char *sign, *value;
  } const rows[] = {
      {"-3", true, "1", "03"},  {"-5", true, "1", "05"},   {"-15", true, "1", "15"}, {"3", true, "0", "03"},
      {"25", true, "0", "25"},  {"-2.5", true, "1", "03"}, {"2.5", true, "0", "03"}, {"0", true, "0", "00"},
      {"/", false, "", ""},     {"", false, "", ""},       {"-", false, "", ""},     {".", false, "", ""},
  };
  for (const Row& r : rows) {
    std::string sign, value;
    EXPECT_EQ(ground_minimum_figures(r.text, sign, value), r.read) << r.text;
    EXPECT_EQ(sign, r.sign) << r.text;
    EXPECT_EQ(value, r.value) << r.text;
  }
}

TEST(Ground, SnowDepthFigures) {
  for (auto [text, sss] : {std::pair{"", ""}, {"0", "997"}, {"5", "005"}, {"45", "045"}, {"120", "120"},
                           {"998", "998"}, {"999", "999"}})
    EXPECT_EQ(snow_depth_figures(text), sss) << text;
}

TEST(Ground, MinimumOnTheScreen) {
  Entry e(kSynop, "06");
  show_groups(e);
  e.ws.type(e.k.Text68, "-3");
  e.ws.focus_now(e.k.Text13);
  EXPECT_EQ(e.ws.GroundSign, "1");
  EXPECT_EQ(e.ws.GroundTemp, "03");

  for (auto [typed, kept] : {std::pair{"2.5", "5"}, {"70", ""}, {"/", "/"}, {"-.", "-."}}) {
    Entry g(kSynop, "06");
    show_groups(g);
    g.ws.type(g.k.Text68, typed);
    g.ws.focus_now(g.k.Text13);
    EXPECT_EQ(g.k.Text68.text, kept) << typed;
  }

  // A refused text is emptied and the typing goes on in the empty box.
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

TEST(Ground, SoilDepthsByTheirLimitRows) {
  struct Row {
    const char* box;
    const char* typed;
    int answer;  // -1: no question
    const char* kept;
    bool refused_on_leaving;
  } const rows[] = {
      {"Text32", "70", -1, "", true},    {"Text32", "60", 0, "", true},   {"Text32", "60", 1, "60", false},
      {"Text34", "-12", -1, "", true},   {"Text37", "45", -1, "", true},  {"Text37", "38", 0, "", true},
      {"Text37", "20", -1, "20", false}, {"Text36", "-", -1, "-", false}, {"Text33", "1a", -1, "", false},
  };
  for (const Row& r : rows) {
    Entry e(kSynop, "03");
    show_groups(e);
    if (r.answer >= 0) e.s.asker.queue(r.answer == 1);
    Control& box = *e.ws.control(r.box);
    e.ws.type(box, r.typed);
    e.ws.focus_now(e.k.Text13);
    EXPECT_EQ(box.text, r.kept) << r.box << " " << r.typed;
    EXPECT_EQ(e.focus(), r.refused_on_leaving ? r.box : "Text13") << r.box << " " << r.typed;
  }
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
      {"4512", "5", "5", "005"}, {"4512", "5a", "", ""},
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
      {"35", "", {false}, "", "", nullptr},
      {"25", "20", {false}, "", "", nullptr},  // asked again as the maximum is entered
      {"10", "8", {}, "10", "", words::kPanMinimumAboveMaximum},
      {"10", "0.5", {}, "10", "", words::kExtremeOutOfRange},
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
      {"TR", "Text65", "114.3", "114.3", "0.1", nullptr},
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

  for (auto [typed, answer, kept] : {std::tuple{"35", true, ""}, {"20", false, ""}, {"20", true, "20"}}) {
    Entry e(kSynop, "06");
    show_groups(e);
    e.s.asker.queue(answer);
    e.ws.type(e.k.Text66, typed);
    e.ws.focus_now(e.k.Text67);
    EXPECT_EQ(e.k.Text66.text, kept) << typed;
  }
}

TEST(Ground, DataBoxesWindRunAndSunshine) {
  struct Row {
    const char *box, *typed, *kept;
    const char* said;
  } const rows[] = {
      {"Text71", "120", "120", nullptr},   {"Text72", "//", "//", nullptr},
      {"Text73", "1.5", "5", words::kCheckData}, {"Text70", "x", "", words::kCheckData},
      {"Text67", "1234", "1234", nullptr}, {"Text67", "12a", "", words::kCheckWindRun},
      {"Text67", "//", "//", nullptr},     {"Txttimesun", "12.5", "12.5", nullptr},
      {"Txttimesun", "19", "", words::kCheckSunshine}, {"Txttimesun", "/", "/", nullptr},
      {"Txttimesun", "1a", "", words::kCheckSunshine},
  };
  for (const Row& r : rows) {
    Entry e(kSynop, "18");
    show_groups(e);
    e.ws.FrmDisplayKashf.Text52.text = "3";
    Control& box = *e.ws.control(r.box);
    e.ws.type(box, r.typed);
    e.ws.focus_now(e.k.Text13);
    EXPECT_EQ(box.text, r.kept) << r.box << " " << r.typed;
    const auto m = e.messages();
    if (r.said == nullptr) {
      EXPECT_TRUE(m.empty()) << r.box << " " << r.typed;
    } else {
      ASSERT_FALSE(m.empty()) << r.box << " " << r.typed;
      EXPECT_EQ(m.back(), panel(r.said)) << r.box << " " << r.typed;
    }
  }
}

}  // namespace
}  // namespace obsdesk
