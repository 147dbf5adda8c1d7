// The groups of sections 0 and 1, each against a table of texts with the values
// on both sides of every band.
#include "coders/synop_groups.h"

#include <gtest/gtest.h>

#include "coders/coder_common.h"
#include "screens/record.h"

namespace obsdesk {
namespace {

TEST(SynopWind, DirectionSpeedAndTheMarkOfAHundred) {
  struct Case {
    const char *n, *dd, *ff, *nddff, *oofff;
  };
  const Case table[] = {
      {"5", "240", "4", "52404", nullptr},  {"TR", "240", "4", "12404", nullptr},
      {"t", "50", "12", "10512", nullptr},  {"8", "VRB ", "3", "89903", nullptr},
      {"8", "000 ", "0", "80000", nullptr}, {"8", "CALM", "0", "80000", nullptr},
      {"3", "360", "99", "33699", nullptr}, {"3", "360", "100", "336//", "OO//"},
      {"/", "90", "7", "/0907", nullptr},
  };
  for (const Case& c : table) {
    const WindGroups w = wind_groups(c.n, c.dd, c.ff);
    EXPECT_EQ(w.nddff, c.nddff) << c.dd << " " << c.ff;
    EXPECT_EQ(w.oofff.has_value(), c.oofff != nullptr) << c.ff;
    if (c.oofff) {
      EXPECT_EQ(*w.oofff, c.oofff);
    }
  }
  EXPECT_THROW(wind_groups("5", "", "4"), CoderError);
  EXPECT_THROW(wind_groups("5", "VRB", "4"), CoderError);  // the form without its blank is no direction
  EXPECT_THROW(wind_groups("5", "240", "x"), CoderError);
}

TEST(SynopVisibility, EveryBandAndItsEdges) {
  const std::pair<double, const char*> table[] = {
      {99, "00"},     {100, "01"},    {250, "02"},     {350, "04"},    {999, "10"},    {5000, "50"},
      {5001, "55"},   {29999, "79"},  {30000, "80"},   {35000, "81"},  {70000, "88"},  {70001, "89"},
      {32000, "32000"},  // between the 5 km steps above 30 km the metres stand
  };
  for (const auto& [vh, vv] : table) EXPECT_EQ(visibility_code(vh), vv) << vh;
}

TEST(SynopCloudBase, HeightBandsAndTheShortGroupAtZero) {
  const std::pair<double, const char*> table[] = {
      {0, ""}, {1, "0"}, {49, "0"}, {50, "1"}, {100, "2"}, {200, "3"}, {300, "4"}, {600, "5"}, {1000, "6"},
      {1500, "7"}, {2000, "8"}, {2499, "8"}, {2500, "9"},
  };
  for (const auto& [h, figure] : table) EXPECT_EQ(cloud_base_figure(h), std::optional<std::string>(figure)) << h;
  EXPECT_EQ(cloud_base_figure(-5), std::nullopt);
}

TEST(SynopSignedTenths, SignAndPaddingOfEveryWidth) {
  struct Case {
    const char *lead, *value;
    std::optional<std::string> group;
  };
  const Case table[] = {
      {"1", "0", "10000"},     {"1", "-0", "10000"},    {"1", "0.1", "10001"},   {"1", "9.9", "10099"},
      {"1", "10", "10100"},    {"1", "99.9", "10999"},  {"1", "-0.5", "11005"},  {"1", "-9.9", "11099"},
      {"9", "-45.3", "91453"}, {"1", "100", std::nullopt}, {"1", "-100", std::nullopt},
  };
  for (const Case& c : table) EXPECT_EQ(signed_tenths_group(c.lead, c.value), c.group) << c.value;
  EXPECT_THROW(signed_tenths_group("2", ""), CoderError);
  EXPECT_THROW(signed_tenths_group("2", "-"), CoderError);
}

TEST(SynopPressure, TheThousandsAreDropped) {
  struct Case {
    const char *lead, *hpa, *group;
  };
  const Case table[] = {{"3", "1012.5", "30125"}, {"3", "999.9", "39999"}, {"3", "1000.0", "30000"},
                        {"3", "850", "38500"}};
  for (const Case& c : table) EXPECT_EQ(pressure_group(c.lead, c.hpa), c.group) << c.hpa;
  EXPECT_THROW(pressure_group("3", ""), CoderError);
}

TEST(SynopTendency, AmountInTenthsOfThreeFigures) {
  EXPECT_EQ(tendency_group("3", "1.2"), "53012");
  EXPECT_EQ(tendency_group("8", "0"), "58000");
  EXPECT_EQ(tendency_group("2", "0.4"), "52004");
  EXPECT_EQ(tendency_group("1", "12.5"), "51125");
  EXPECT_THROW(tendency_group("1", "a"), CoderError);
}

TEST(SynopRain, BandsHourAndStationKind) {
  constexpr auto k24 = StationKind::Hours24, k12 = StationKind::Hours12, k18 = StationKind::Hours18,
                 k6 = StationKind::Hours6;
  struct Case {
    const char* rain;
    const char* hour;
    StationKind kind;
    std::optional<std::string> group;
  };
  const Case table[] = {
      {"TR", "12", k24, "69901"},   {"0.1", "12", k24, "69911"},   {"0.9", "12", k24, "69991"},
      {"1", "12", k24, "60011"},    {"2.5", "12", k24, "60031"},   {"9.5", "12", k24, "60101"},
      {"10.5", "12", k24, "60101"}, {"99.5", "12", k24, "61001"},  {"988", "12", k24, "69881"},
      {"989", "12", k24, "69891"},  {"1200", "12", k24, "69891"},
      {"0", "18", k24, "60001"},    {"0", "03", k24, std::nullopt},
      {"0", "06", k24, "60001"},    {"0", "06", k18, "60002"},     {"0", "06", k12, "60003"},
      {"0", "06", k6, "60004"},     {"0", "06", StationKind::None, "6000"},  {"/", "12", k24, "6///1"},
      {"/", "09", k24, std::nullopt}, {"0.05", "12", k24, std::nullopt},
  };
  for (const Case& c : table) EXPECT_EQ(rain_group(c.rain, c.hour, c.kind), c.group) << c.rain << " at " << c.hour;
  EXPECT_THROW(rain_group("", "12", k24), CoderError);
  EXPECT_THROW(rain_group("tr", "12", k24), CoderError);
}

TEST(SynopRain, HalvesReadFromTheText) {
  const std::pair<const char*, double> table[] = {
      {"2.5", 3}, {"3.5", 4}, {"2.4", 2}, {"7", 7}, {"0.5", 0.5}, {"20.5", 20}, {"22.5", 23},
  };
  for (const auto& [text, value] : table) EXPECT_DOUBLE_EQ(round_rain_text(text), value) << text;
}

TEST(SynopCloudGroup, FiguresTracesAndTheMiddleCloudCase) {
  struct Case {
    const char *tp, *low, *middle, *high, *valuem, *group;
  };
  const Case table[] = {
      {"3", "CU     1", "       0", "       0", "0", "83100"},
      {"TR", "CU     1", "AC     3", "CI     1", "0", "81131"},
      {"tr", "       X", "       X", "       X", "0", "81///"},
      {"5", "       X", "       X", "CC,CS  9", "0", "85X/9"},  // the raw low figure stays
      {"3", "      0", "       0", "       0", "0", "8300"},  // the short first item of Combo4
      {"3", "      X", "0", "0", "0", "8300"},  // a seven-character item has no eighth figure
      {"0", "       0", "AS     2", "       0", "5", "85020"},
      {"0", "       0", "AS     2", "       0", "TR", "80020"},
  };
  for (const Case& c : table) EXPECT_EQ(cloud_group(c.tp, c.low, c.middle, c.high, c.valuem), c.group) << c.tp << c.low;
}

TEST(SynopHumidity, WholePercentInThreeFigures) {
  EXPECT_EQ(humidity_box("45.6"), "046");
  EXPECT_EQ(humidity_box("100"), "100");
  EXPECT_EQ(humidity_box("44.5"), "044");
  EXPECT_THROW(humidity_box(""), CoderError);
}

TEST(SynopSplit, BreaksAtTheLastBlankWithinTheLimit) {
  const std::string short_text = "32558 52404 10254 20121 30125 40150 53012 60001 83100 333=";
  EXPECT_EQ(split_report(short_text, 61), std::make_pair(short_text, std::string()));
  const std::string sixty_one = std::string(55, 'a') + " bbbbb";  // 61 characters
  EXPECT_EQ(split_report(sixty_one, 61).first, sixty_one);
  const std::string long_text = "32558 52404 10254 20121 30125 40150 53012 60001 70222 83100 333 10300=";
  const auto lines = split_report(long_text, 61);
  EXPECT_EQ(lines.first, "32558 52404 10254 20121 30125 40150 53012 60001 70222 83100");
  EXPECT_EQ(lines.second, "333 10300=");
  // A blank exactly at the limit still breaks there.
  const std::string edge = std::string(60, 'a') + " " + "bbbbb";
  EXPECT_EQ(split_report(edge, 61), std::make_pair(std::string(60, 'a'), std::string("bbbbb")));
}

}  // namespace
}  // namespace obsdesk
