// The groups of the METAR and SPECI reports, each checked against its table.
#include "coders/metar_groups.h"

#include <gtest/gtest.h>

namespace obsdesk {
namespace {

TEST(ModuleNim, RoundsEveryBandWithHalvesUpward) {
  const std::pair<const char*, const char*> table[] = {
      {"0", "00"},      {"-0", "00"},
      // below zero, first band: -0.4 and -0.5 both give "M00", apart from plain 0
      {"-0.1", "M00"},  {"-0.5", "M00"},  {"-0.6", "M01"},
      // second band: an exact half turns toward zero
      {"-1.5", "M01"},  {"-1.6", "M02"},  {"-2.5", "M02"},  {"-9.5", "M09"},  {"-9.6", "M10"},
      // third band, one place further on
      {"-10.5", "M10"}, {"-12.5", "M12"}, {"-25.7", "M26"},
      // above zero
      {"0.4", "00"},    {"0.5", "01"},    {"2.5", "03"},    {"12.5", "13"},   {"46.5", "47"},
  };
  for (const auto& [t, group] : table) EXPECT_EQ(module_nim(t), group) << t;
}

TEST(ModuleNim, RefusesTextThatIsNoNumber) {
  for (const char* bad : {"", "abc", "1.2.3", "1E400"}) EXPECT_THROW(module_nim(bad), CoderError) << bad;
}

TEST(TemperatureGroup, JoinsWhatIsThere) {
  const struct {
    const char* tdry;
    const char* tdew;
    const char* group;
  } table[] = {
      {"25.4", "12.1", "25/12"}, {"-0.4", "-3.5", "M00/M03"}, {"0", "-0.5", "00/M00"},
      {"25", "", "25/"},         {"", "", ""},                {"-", "12", "///12"},
  };
  for (const auto& row : table) EXPECT_EQ(temperature_group(row.tdry, row.tdew), row.group) << row.tdry;
}

TEST(VisibilityGroup, FollowsTheStepsOfTheTable) {
  const struct {
    double v;
    const char* dir;
    bool top;
    const char* group;
  } table[] = {
      {10000, "N", true, "9999"}, {49, "N", true, "0000N"},   {0, "", true, "0000"},
      {50, "NE", true, "0050NE"}, {99, "", true, "0050"},     {100, "", true, "0100"},
      {799, "", true, "0750"},    {800, "", true, "0800"},    {999, "", true, "0900"},
      {4999, "", true, "4900"},   {5000, "", true, "5000"},   {9999, "SW", true, "9000SW"},
      // the second visibility has no top row
      {12000, "E", false, ""},    {8000, "E", false, "8000E"},
  };
  for (const auto& row : table)
    EXPECT_EQ(visibility_group(row.v, row.dir, row.top), row.group) << row.v;
}

TEST(VerticalVisibility, ThirtyMetreStepsThenThreeHundred) {
  const std::pair<const char*, const char*> table[] = {
      {"", ""},          {"/", "VV///"},      {"//", "VV///"},   {"0", "VV000"},    {"60", "VV002"},
      {"299", "VV009"},  {"300", "VV010"},    {"1500", "VV050"}, {"1600", "VV050"}, {"1800", "VV056"},
      {"9000", "VV080"}, {"9500", ""},
  };
  for (const auto& [vv, group] : table) EXPECT_EQ(metar_vertical_visibility(vv), group) << vv;
}

TEST(TimeGroup, LooksBackToTheTenthMinuteBeforeTheHour) {
  const struct {
    const char *day, *hour, *group;
  } table[] = {
      {"01", "00", "010000Z"},  // the first of the month does not look back
      {"01", "01", "010050Z"}, {"01", "23", "012250Z"}, {"15", "00", "142350Z"},
      {"15", "12", "151150Z"}, {"7", "12", "071150Z"},  {"10", "0", "092350Z"},
  };
  for (const auto& row : table) EXPECT_EQ(metar_time_group(row.day, row.hour), row.group) << row.day << " " << row.hour;
  for (const char* bad : {"", "24", "x", "5.5"}) EXPECT_THROW(metar_time_group("15", bad), CoderError) << bad;
}

TEST(TimeGroup, HalfHourAndSpeciForms) {
  EXPECT_EQ(metar_utc("5"), "0500");
  EXPECT_EQ(metar_utc("12"), "1200");
  EXPECT_EQ(metar30_time_group("7", "1230"), "071230Z");
  EXPECT_EQ(speci_hhmm("7"), "0007");
  EXPECT_EQ(speci_hhmm("1234"), "1234");
  EXPECT_EQ(speci_time_group("05", "1234"), "051234Z");
  EXPECT_EQ(speci_time_group("17", "0007"), "170007Z");
}

TEST(WindGroup, KnotsGustAndCalm) {
  const struct {
    const char* dd;
    const char* ff;
    const char* gust;
    const char* group;
  } table[] = {
      {"240", "4", "", "24008KT"},         {"90", "3", "", "09006KT"},
      {"240", "100", "", "240195KT"},      {"240", "10", "15", "24019G29KT"},
      {"VRB ", "2", "", "VRB04KT"},        {"CALM", "00", "", "00000KT"},
      {"000 ", "5", "", "00000KT"},        {"c", "7", "", "00000KT"},
      {"0", "", "", "00000KT"},            {"360", "0", "", "36000KT"},
  };
  for (const auto& row : table) EXPECT_EQ(wind_group(row.dd, row.ff, row.gust), row.group) << row.dd << row.ff;
  EXPECT_THROW(wind_group("240", "", ""), CoderError);
  EXPECT_THROW(wind_group("240", "4", "x"), CoderError);
}

TEST(SmallGroups, SectorPressureAndHeights) {
  EXPECT_EQ(variable_sector("60", "120"), "060V120");
  EXPECT_EQ(variable_sector("350", "10"), "350V010");
  EXPECT_EQ(variable_sector("", "120"), "");
  EXPECT_EQ(qnh_group("999.9"), "Q0999");
  EXPECT_EQ(qnh_group("1000.0"), "Q1000");
  EXPECT_EQ(qnh_group("1015.2"), "Q1015");
  EXPECT_EQ(qnh_group(""), "");
  EXPECT_EQ(altimeter_group("29.92"), "A2992");
  EXPECT_EQ(altimeter_group(""), "");
  const std::pair<const char*, const char*> heights[] = {
      {"600", "020"}, {"30", "001"}, {"0", "000"}, {"3000", "100"}, {"15000", "500"},
  };
  for (const auto& [metres, hundreds_of_feet] : heights) EXPECT_EQ(cloud_height(metres), hundreds_of_feet) << metres;
  EXPECT_EQ(cover(0), "FEW");
  EXPECT_EQ(cover(4), "SCT");
  EXPECT_EQ(cover(7), "BKN");
  EXPECT_EQ(cover(8), "OVC");
  EXPECT_EQ(cover(9), "");
}

TEST(LowestCloud, LowestNonZeroLayer) {
  const struct {
    const char *l1, *l2, *l3, *m, *h, *held, *lowest;
  } table[] = {
      {"600", "300", "0", "2000", "X", "", "300"}, {"600", "0", "0", "450", "0", "", "450"},
      {"600", "0", "0", "X", "X", "", "600"},      {"0", "0", "0", "2000", "7000", "", "2000"},
      {"0", "0", "0", "0", "7000", "", "7000"},    {"0", "0", "0", "0", "X", "900", "900"},
  };
  for (const auto& r : table) EXPECT_EQ(lowest_cloud(r.l1, r.l2, r.l3, r.m, r.h, r.held), r.lowest) << r.l1;
}

// Layers named by placeholders, so that each box shows which layer went in.
CloudLayers layers(double a1, double a2, double a3, double aM, double aH, bool c1, bool c2, bool c3,
                   bool middle_trace = false) {
  CloudLayers c;
  c.a1 = a1, c.a2 = a2, c.a3 = a3, c.aM = aM, c.aH = aH;
  c.conv1 = c1, c.conv2 = c2, c.conv3 = c3;
  c.middle_trace = middle_trace;
  c.L1 = "L1", c.L2 = "L2", c.L3 = "L3", c.M = "M", c.H = "H";
  return c;
}

TEST(CloudGroups, TheEightCases) {
  using B = std::array<std::string, 5>;
  const struct {
    const char* name;
    CloudLayers c;
    B boxes;
  } table[] = {
      // 1: no first low layer
      {"1 high only", layers(0, 0, 0, 0, 2, 0, 0, 0), {"H", "", "", "", ""}},
      {"1 middle trace", layers(0, 0, 0, 0, 0, 0, 0, 0, true), {"H", "", "", "", ""}},
      {"1 middle and high", layers(0, 0, 0, 3, 3, 0, 0, 0), {"M", "H", "", "", ""}},
      {"1 thin high left out", layers(0, 0, 0, 3, 2, 0, 0, 0), {"M", "", "", "", ""}},
      // 2: plain first layer
      {"2 three layers", layers(3, 3, 5, 0, 0, 0, 0, 0), {"L1", "L2", "L3", "", ""}},
      {"2 thin third, thick middle", layers(2, 3, 2, 5, 0, 0, 0, 0), {"L1", "L2", "M", "", ""}},
      {"2 thin second", layers(2, 1, 3, 0, 6, 0, 0, 0), {"L1", "L3", "H", "", ""}},
      {"2 tail", layers(2, 0, 0, 3, 5, 0, 0, 0), {"L1", "M", "H", "", ""}},
      {"2 tail high", layers(2, 0, 0, 0, 3, 0, 0, 0), {"L1", "H", "", "", ""}},
      // 3: convective first layer
      {"3 end", layers(3, 3, 4, 6, 0, 1, 0, 0), {"L1", "L2", "L3", "M", ""}},
      {"3 tail from 3", layers(3, 3, 0, 3, 5, 1, 0, 0), {"L1", "L2", "M", "H", ""}},
      {"3 alone, tail from 2", layers(3, 0, 0, 1, 3, 1, 0, 0), {"L1", "M", "H", "", ""}},
      {"3 alone, high", layers(3, 0, 0, 0, 1, 1, 0, 0), {"L1", "H", "", "", ""}},
      // 4: convective second layer
      {"4 three layers", layers(2, 3, 3, 5, 0, 0, 1, 0), {"L1", "L2", "L3", "M", ""}},
      {"4 tail", layers(2, 2, 0, 3, 6, 0, 1, 0), {"L1", "L2", "M", "H", ""}},
      // 5: convective third layer
      {"5 three layers", layers(2, 3, 1, 0, 5, 0, 0, 1), {"L1", "L2", "L3", "H", ""}},
      {"5 thin second", layers(2, 1, 2, 4, 0, 0, 0, 1), {"L1", "L3", "M", "", ""}},
      // 6: first two convective
      {"6 no third", layers(2, 2, 0, 2, 0, 1, 1, 0), {"L1", "L2", "M", "", ""}},
      {"6 all five", layers(2, 2, 3, 3, 5, 1, 1, 0), {"L1", "L2", "L3", "M", "H"}},
      // 7: first and third convective
      {"7 middle and high", layers(2, 2, 1, 3, 5, 1, 0, 1), {"L1", "L2", "L3", "M", "H"}},
      {"7 high only", layers(2, 2, 1, 0, 3, 1, 0, 1), {"L1", "L2", "L3", "H", ""}},
      // 8: second and third convective
      {"8", layers(2, 1, 1, 3, 0, 0, 1, 1), {"L1", "L2", "L3", "M", ""}},
      // three convective layers: no case names the others
      {"all convective", layers(2, 2, 2, 0, 0, 1, 1, 1), {"L1", "", "", "", ""}},
  };
  for (const auto& row : table) EXPECT_EQ(cloud_groups(row.c), row.boxes) << row.name;
}

TEST(CloudGroups, ConvectiveLayersAtOneHeightMerge) {
  std::array<std::string, 5> boxes = {"FEW020CB", "SCT020TCU", "BKN100", "", ""};
  Merge m;
  m.first = true, m.a1 = 2, m.a2 = 3, m.h1 = "020";
  EXPECT_EQ(merge_convective(boxes, m), 0);
  EXPECT_EQ(boxes, (std::array<std::string, 5>{"BKN020CB", "BKN100", "", "", ""}));

  boxes = {"FEW010", "FEW020CB", "SCT020CB", "OVC100", "BKN200"};
  m = Merge{};
  m.second = true, m.a2 = 2, m.a3 = 3, m.h2 = "020";
  EXPECT_EQ(merge_convective(boxes, m), 0);
  EXPECT_EQ(boxes, (std::array<std::string, 5>{"FEW010", "BKN020CB", "OVC100", "BKN200", ""}));

  // More than eight oktas together: told, and the group has no cover.
  boxes = {"BKN020CB", "SCT020CB", "", "", ""};
  m = Merge{};
  m.first = true, m.a1 = 5, m.a2 = 4, m.h1 = "020";
  EXPECT_EQ(merge_convective(boxes, m), 1);
  EXPECT_EQ(boxes[0], "020CB");
}

TEST(Report, JoinAndSplitAtTheLimit) {
  EXPECT_EQ(join_groups({"", "24008KT", " ", "8000", ""}), " 24008KT 8000");
  const struct {
    const char* text;
    const char* line1;
    const char* line2;
  } table[] = {
      {" 24008KT 8000 SCT020 25/12 Q1015=", " 24008KT 8000 SCT020 25/12 Q1015=", ""},
      // exactly 48 stays one line; 49 breaks at the last blank within 48
      {" 240195KT 8000 SCT020 BKN030 OVC100 25/12 Q1015=", " 240195KT 8000 SCT020 BKN030 OVC100 25/12 Q1015=",
       ""},
      {" 240195KT 8000 SCT020 BKN030 OVC100 M25/12 Q1015=", " 240195KT 8000 SCT020 BKN030 OVC100 M25/12",
       "Q1015="},
      // nothing to break at: one line, nothing lost
      {"0123456789012345678901234567890123456789012345678901234",
       "0123456789012345678901234567890123456789012345678901234", ""},
  };
  for (const auto& row : table) {
    const auto [l1, l2] = split_report(row.text, 48);
    EXPECT_EQ(l1, row.line1) << row.text;
    EXPECT_EQ(l2, row.line2) << row.text;
  }
}

}  // namespace
}  // namespace obsdesk
