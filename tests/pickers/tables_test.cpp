// The code tables of the boards: their sizes, the entries that look like slips and
// are kept, and the shape every row must have.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "pickers/board_tables.h"
#include "pickers/weather_tables.h"

namespace obsdesk {
namespace {

TEST(PickerTables, PresentWeatherRowsKeepTheirTexts) {
  const auto& t = present_weather_table();
  ASSERT_EQ(t.size(), 100u);
  struct Row {
    int ww;
    std::string_view synop, metar, recent;
    Gate gate;
    bool ask;
  };
  const Row rows[] = {
      {0, "00", "", "", Gate::None, false},       {4, "04", "FU", "FU", Gate::None, false},
      {17, "17", "TS", "TS", Gate::CB, false},    {48, "48", "FZFG", "FZFG", Gate::None, false},
      {50, "50", "-DZ", "-DZ", Gate::ST, true},   {59, "59", "RA", "RERA", Gate::None, false},
      {66, "66", "FZRA", "FZRA", Gate::NS, false}, {69, "69", "SNRA", "+SNRA", Gate::NS, false},
      {72, "72", "SN", "RESN", Gate::NS, true},   {76, "76", "", "", Gate::NS, true},
      {79, "79", "PE", "PE", Gate::PE, false},    {80, "", "-SHRA", "-SHRA", Gate::CB, false},
      {83, "83", "SNRA", "SNRA", Gate::CB, true}, {88, "88", "GR", "+GR", Gate::CB, false},
      {99, "99", "+TSGR", "+TSGR", Gate::CB, false},
  };
  for (const Row& r : rows) {
    const PresentWeather& p = t[r.ww];
    EXPECT_EQ(p.synop, r.synop) << r.ww;
    EXPECT_EQ(p.metar, r.metar) << r.ww;
    EXPECT_EQ(p.recent, r.recent) << r.ww;
    EXPECT_EQ(p.gate, r.gate) << r.ww;
    EXPECT_EQ(p.ask, r.ask) << r.ww;
  }
  // Every code but 80 writes its own two figures; only 04 to 09 send the recent
  // place to the METAR box; only a gated code may ask.
  for (int ww = 0; ww < 100; ++ww) {
    const PresentWeather& p = t[ww];
    if (ww != 80) {
      EXPECT_EQ(std::stoi(std::string(p.synop)), ww);
    }
    EXPECT_EQ(p.recent_in_metar_box, ww >= 4 && ww <= 9) << ww;
    if (p.ask) {
      EXPECT_NE(p.gate, Gate::None) << ww;
    }
    for (const BeforeTest& b : p.before) EXPECT_FALSE(b.message.empty()) << ww;
  }
  EXPECT_EQ(t[4].mark, Mark::M5);
  EXPECT_EQ(t[7].mark, Mark::M5);
  EXPECT_EQ(t[8].mark, Mark::None);
  EXPECT_EQ(t[10].mark, Mark::M5m);
}

TEST(PickerTables, PresentWeatherTestsAndTheirWords) {
  const auto& t = present_weather_table();
  // The visibility words differ by code though the test is the same.
  EXPECT_EQ(t[11].before.at(0).message, "      ديد افقي بيشتر از 1000 متر ميباشد     ");
  EXPECT_EQ(t[28].before.at(0).check, Check::VisAbove999);
  EXPECT_EQ(t[28].before.at(0).message, t[11].before.at(0).message);
  EXPECT_EQ(t[40].before.at(1).message, "      ديد افقي مساوي ويابيشتر از 1000 متر ميباشد     ");
  EXPECT_EQ(t[54].before.at(0).message, "      ديد افقي بايد كمتر از 1000 متر ميباشد     ");
  EXPECT_EQ(t[57].before.at(0).check, Check::VisBelow4000);
  EXPECT_EQ(t[86].before.at(0).check, Check::VisBelow4001);
  EXPECT_NE(t[86].before.at(0).message, t[52].before.at(0).message);
  EXPECT_EQ(t[30].before.at(0).message, "        سرعت باد كمتر از 30 گره  ميباشد        ");
  EXPECT_EQ(t[43].before.at(1).check, Check::CloudObscured);
  EXPECT_EQ(t[48].before.at(1).check, Check::CloudNotObscured);
  std::size_t tests = 0;
  for (const auto& p : t) tests += p.before.size();
  EXPECT_EQ(tests, 64u);
}

TEST(PickerTables, PastHourRowsStandAsStored) {
  const auto& t = past_hour_table();
  ASSERT_EQ(t.size(), 100u);
  EXPECT_EQ(t[48].box, "FZFFG");
  EXPECT_EQ(t[28].act, PastHourAct::Refuse);
  EXPECT_EQ(t[78].act, PastHourAct::Nothing);
  EXPECT_EQ(t[0].box, "***");
  EXPECT_EQ(t[9].box, "");
  EXPECT_EQ(t[40].box, "BCFG");
  EXPECT_EQ(t[40].panel, "");
  EXPECT_EQ(t[99].box, "RETSGR");
  EXPECT_EQ(t[99].panel, "RETSSA");
  EXPECT_EQ(t[99].blocked_by, t[98].blocked_by);
  for (int ww = 72; ww <= 75; ++ww) EXPECT_EQ(t[ww].blocked_by, (std::vector<std::string_view>{"-SN", "+SN"}));
  int written = 0, reported = 0;
  for (const auto& r : t) {
    written += r.act == PastHourAct::Write;
    reported += !r.panel.empty();
    if (r.panel.empty()) {
      EXPECT_TRUE(r.blocked_by.empty());
    }
  }
  EXPECT_EQ(written, 98);
  EXPECT_EQ(reported, 56);
}

TEST(PickerTables, SmallBoards) {
  EXPECT_EQ(past_weather_table().size(), 10u);
  EXPECT_EQ(past_weather_table()[5].picture, "W5");
  EXPECT_EQ(ground_state_table().size(), 20u);
  EXPECT_EQ(ground_state_table()[15].picture, "Ep5");
  EXPECT_EQ(ground_state_table()[3].picture, "E3");
  EXPECT_EQ(ir_texts().size(), 4u);
  EXPECT_EQ(ix_texts().size(), 6u);
  EXPECT_EQ(vicinity_codes().size(), 11u);
  EXPECT_EQ(present_weather_picture(63), "ww63");
  EXPECT_EQ(present_weather_picture(100), "");
  std::set<std::string_view> texts;
  for (const SkyLetter& s : sky_letter_table()) texts.insert(s.text);
  EXPECT_EQ(texts, (std::set<std::string_view>{" b", " c", " bc", " o", " by", " cy", " bcy", " oy"}));
}

TEST(PickerTables, CloudAmountOpensOneSky) {
  struct Case {
    double a;
    bool b, c, bc, o;  // shut
  };
  const Case cases[] = {{0, 0, 1, 1, 1}, {2, 0, 1, 1, 1}, {3, 1, 1, 0, 1}, {5, 1, 1, 0, 1}, {6, 1, 0, 1, 1},
                        {7, 1, 0, 1, 1}, {8, 1, 0, 1, 0}, {9, 0, 0, 0, 0}};
  for (const Case& c : cases) {
    EXPECT_EQ(sky_shut_by_amount(Sky::b, c.a), c.b) << c.a;
    EXPECT_EQ(sky_shut_by_amount(Sky::c, c.a), c.c) << c.a;
    EXPECT_EQ(sky_shut_by_amount(Sky::bc, c.a), c.bc) << c.a;
    EXPECT_EQ(sky_shut_by_amount(Sky::o, c.a), c.o) << c.a;
  }
}

}  // namespace
}  // namespace obsdesk
