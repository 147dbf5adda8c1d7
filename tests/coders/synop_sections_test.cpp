// The groups of sections 3 and 5 and the cloud groups 8NsChshs, against tables
// with the values on both sides of every band and every branch of the choice.
#include "coders/synop_sections.h"

#include <gtest/gtest.h>

#include "coders/coder_common.h"

namespace obsdesk {
namespace {

using Opt = std::optional<std::string>;
const std::string B = "     ";

TEST(SynopSection3, LayerHeightBands) {
  struct Case {
    double x;
    bool first;
    Opt code;
  };
  const Case table[] = {
      {29, false, "00"},   {30, false, "01"},     {299, false, "09"},    {300, false, "10"},
      {1500, false, "50"}, {1501, true, "50"},    {1501, false, "1500"}, {1799, false, "1500"},
      {1800, false, "56"}, {9001, false, "80"},   {10500, false, "81"},  {21000, false, "88"},
      {21001, false, std::nullopt},
  };
  for (const Case& c : table) EXPECT_EQ(layer_height_code(c.x, c.first), c.code) << c.x << " " << c.first;
}

TEST(SynopSection3, VerticalVisibility) {
  const std::pair<const char*, Opt> table[] = {
      {"", std::nullopt}, {"/", "89///"},    {"//", "89///"},    {"150", "89/05"},        {"1600", "89/50"},
      {"1800", "89/56"},  {"21000", "89/88"}, {"21001", std::nullopt}, {"21002", "89/89"},
  };
  for (const auto& [vv, group] : table) EXPECT_EQ(vertical_visibility_group(vv), group) << vv;
  EXPECT_THROW(vertical_visibility_group("x"), CoderError);
}

TEST(SynopSection3, CloudFiguresAndLayerGroups) {
  EXPECT_EQ(section3_cloud_figure("CU,SC  8"), "8");
  EXPECT_EQ(section3_cloud_figure("CB     9"), "9");
  EXPECT_EQ(section3_cloud_figure("ST,FS  6"), "7");
  EXPECT_EQ(section3_cloud_figure("AS,AC  7"), "4");
  EXPECT_EQ(section3_cloud_figure("AC,AS  7"), "3");
  EXPECT_EQ(section3_cloud_figure("NS     2"), "5");
  EXPECT_EQ(section3_cloud_figure("CC,CS  9"), "1");
  EXPECT_EQ(section3_cloud_figure("       0"), "");
  EXPECT_EQ(layer_group({"3", "SC     4", "1600"}, true), "83650");
  EXPECT_EQ(layer_group({"3", "SC     4", "1600"}, false), "8361500");
  EXPECT_EQ(layer_group({"TR", "CU     1", "600"}, true), "80820");
  EXPECT_EQ(layer_group({"2", "AC     3", "X"}, false), B);
  EXPECT_EQ(layer_group({"2", "AC     3", ""}, false), B);
}

// Rows with fixed heights: L1 600 m (20), L2 900 m (30), L3 1200 m (40), middle
// AC at 3000 m (60), high CI at 7500 m (75). A low row is SC or CB.
Section3Clouds rows(const char* a1, bool cb1, const char* a2, bool cb2, const char* a3, bool cb3, const char* am,
                    const char* ah) {
  auto low = [](bool cb) { return std::string(cb ? "CB     9" : "SC     4"); };
  Section3Clouds s;
  s.rows = {CloudRow{a1, low(cb1), "600"}, CloudRow{a2, low(cb2), "900"}, CloudRow{a3, low(cb3), "1200"},
            CloudRow{am, "AC     3", "3000"}, CloudRow{ah, "CI     1", "7500"}};
  return s;
}

TEST(SynopSection3, ChoiceOfTheFourBoxes) {
  struct Case {
    const char* name;
    Section3Clouds in;
    CloudBoxes out;
  };
  const Case table[] = {
      // First layer a trace.
      {"TR cb2 a3=0", rows("TR", 0, "3", 1, "0", 0, "2", "1"), {"83930", "82360", "81075", B}},
      {"TR cb2 cb3", rows("TR", 0, "3", 1, "2", 1, "0", "3"), {"83930", "82940", "83075", B}},
      {"TR cb2 a3>0", rows("TR", 0, "3", 1, "2", 0, "3", "5"), {"83930", "82640", "83360", "85075"}},
      {"TR a2>0 cb3", rows("TR", 0, "2", 0, "3", 1, "1", "1"), {"82630", "83940", B, B}},
      {"TR a2>0 a3>2", rows("TR", 0, "2", 0, "3", 0, "5", "0"), {"82630", "83640", "85360", B}},
      {"TR a2>0 a3<=2", rows("TR", 0, "2", 0, "1", 0, "0", "3"), {"82630", "83075", B, B}},
      {"TR a2=0 cb3", rows("TR", 0, "0", 0, "2", 1, "2", "2"), {"82940", "82360", B, B}},
      {"TR a2=0 a3>0", rows("TR", 0, "0", 0, "1", 0, "3", "5"), {"81640", "83360", "85075", B}},
      {"TR a2=0 a3=0", rows("TR", 0, "0", 0, "0", 0, "0", "1"), {"81075", B, B, B}},
      // Otherwise.
      {"two CB", rows("3", 1, "2", 1, "0", 0, "5", "5"), {B, B, B, B}},
      {"cb1 a2=0", rows("3", 1, "0", 0, "0", 0, "0", "3"), {"83920", "83075", B, B}},
      {"cb1 a3>2", rows("3", 1, "2", 0, "3", 0, "0", "5"), {"83920", "82630", "83640", "85075"}},
      {"cb1 a3<=2", rows("3", 1, "2", 0, "2", 0, "3", "3"), {"83920", "82630", "83360", B}},
      {"cb2 a3>2", rows("2", 0, "3", 1, "4", 0, "5", "0"), {"82620", "83930", "84640", "85360"}},
      {"cb2 a3<=2", rows("2", 0, "3", 1, "2", 0, "0", "0"), {"82620", "83930", B, B}},
      {"cb3 a2>2", rows("2", 0, "3", 0, "4", 1, "2", "2"), {"82620", "83630", "84940", B}},
      {"cb3 a2<=2", rows("2", 0, "1", 0, "4", 1, "4", "5"), {"82620", "84940", "84360", "85075"}},
      {"no CB a1=0", rows("0", 0, "0", 0, "0", 0, "2", "3"), {"82360", "83075", B, B}},
      {"a2>2 a3>4", rows("1", 0, "3", 0, "5", 0, "8", "8"), {"81620", "83630", "85640", B}},
      {"a2>2 a3<=4", rows("1", 0, "3", 0, "4", 0, "0", "6"), {"81620", "83630", "86075", B}},
      {"a2<=2 a3>2", rows("1", 0, "2", 0, "3", 0, "5", "0"), {"81620", "83640", "85360", B}},
      {"a2<=2 a3<=2", rows("1", 0, "2", 0, "2", 0, "3", "5"), {"81620", "83360", "85075", B}},
  };
  for (const Case& c : table) EXPECT_EQ(choose_cloud_boxes(c.in, {B, B, B, B}), c.out) << c.name;
  // What no branch names keeps what it held: the vertical visibility in box 0.
  EXPECT_EQ(choose_cloud_boxes(rows("3", 1, "2", 1, "0", 0, "5", "5"), {"89/05", B, B, B})[0], "89/05");
}

TEST(SynopSection3, CleaningOfTheBoxes) {
  struct Case {
    const char* name;
    CloudBoxes in;
    const char* vv;
    const char* valuel1;
    CloudBoxes out;
  };
  const Case table[] = {
      {"obscured without VV", {"89///", "82620", B, B}, "", "2", {B, "82620", B, B}},
      {"obscured with VV", {"89/05", "82620", B, B}, "150", "2", {"89/05", "82620", B, B}},
      {"eight oktas first", {"88620", "83360", "85075", B}, "", "8", {"88620", B, B, B}},
      {"no cover moves up", {"80620", "83630", B, B}, "", "0", {"83630", B, B, B}},
      {"no cover in box 1", {"82620", "80360", "85075", "86075"}, "", "2", {"82620", "85075", "86075", B}},
      {"no cover in box 3", {"82620", "83360", "85075", "80075"}, "", "2", {"82620", "83360", "85075", B}},
      {"scan stops at blank", {B, "80620", B, B}, "", "0", {B, "80620", B, B}},
  };
  for (const Case& c : table) {
    CloudBoxes b = c.in;
    drop_obscured_boxes(b, c.vv);
    compact_cloud_boxes(b, c.valuel1);
    EXPECT_EQ(b, c.out) << c.name;
  }
}

TEST(SynopSection3, RainOf24Hours) {
  const std::pair<const char*, Opt> table[] = {
      {"", std::nullopt}, {"/", "7////"},     {"TR", "79999"},    {"0", "70000"},        {"0.1", "70001"},
      {"99.9", "70999"},  {"100", "71000"},   {"999.9", "79999"}, {"1000", std::nullopt}, {"0.05", std::nullopt},
  };
  for (const auto& [rain, group] : table) EXPECT_EQ(rain24_group(rain), group) << rain;
  EXPECT_THROW(rain24_group("a"), CoderError);
}

TEST(SynopSection3, SnowEvaporationSunshineRadiation) {
  const std::pair<const char*, const char*> snow[] = {
      {"0", "45997"}, {"12", "45012"}, {"998", "45998"}, {"999", "45999"}, {"2.5", "45002"},
  };
  for (const auto& [depth, group] : snow) EXPECT_EQ(snow_group("5", depth), group) << depth;

  const char* kinds[] = {"USA طشت تبخير سنج باز  (بدون پوشش) مدل ", "تانك (مخزن) 20 متر مربعي", "ديگر محصولات"};
  EXPECT_EQ(pan_figure(kinds[0]), "0");
  EXPECT_EQ(pan_figure(kinds[1]), "3");
  EXPECT_EQ(pan_figure(kinds[2]), "9");
  EXPECT_EQ(pan_figure("other"), "");

  const std::pair<const char*, Opt> evap[] = {
      {"", std::nullopt}, {"-", std::nullopt}, {".", std::nullopt}, {"X", "5///3"},       {"xx", "5///3"},
      {"0", "50003"},     {"0.5", "50053"},    {"99.9", "59993"},   {"100", std::nullopt},
  };
  for (const auto& [e, group] : evap) EXPECT_EQ(evaporation_group(e, kinds[1]), group) << e;
  EXPECT_TRUE(evaporation_is_negative("-0.1"));
  EXPECT_FALSE(evaporation_is_negative("0"));
  EXPECT_FALSE(evaporation_is_negative("X"));

  const std::pair<const char*, Opt> sun[] = {
      {"", std::nullopt}, {".", std::nullopt}, {"/", "55///"}, {"0", "55000"}, {"0.5", "55005"}, {"12.5", "55125"},
      {"100", std::nullopt},
  };
  for (const auto& [hours, group] : sun) EXPECT_EQ(sunshine_group(hours), group) << hours;

  EXPECT_EQ(radiation_group("//", "1"), "2////");
  EXPECT_EQ(radiation_group("1234", "1"), "21234");
  EXPECT_EQ(radiation_group("12.4", "1"), "20012");
  EXPECT_EQ(radiation_group("300", "1.5"), "20450");
  EXPECT_EQ(radiation_group("12.5", "1"), "20012");
  EXPECT_THROW(radiation_group("12", ""), CoderError);
}

TEST(SynopSection3, UpperAirGroupAndItsSlot) {
  EXPECT_EQ(upper_air_group("1480.4"), Opt("48480"));
  EXPECT_EQ(upper_air_group("1499.5"), Opt("48500"));
  EXPECT_EQ(upper_air_group("+++++"), std::nullopt);
  EXPECT_EQ(upper_air_group(""), std::nullopt);
  struct Case {
    const char *height, *hour, *slot;
  };
  const Case table[] = {{"750", "06", "48480"},  {"750", "03", "     "},    {"749.9", "06", "     "},
                        {"2300", "18", "48480"}, {"2300.1", "00", "     "}, {"1190.8", "", "     "}};
  for (const Case& c : table) EXPECT_EQ(upper_air_slot("48480", c.height, c.hour), c.slot) << c.height << " " << c.hour;
}

TEST(SynopDateStep, NextDayAcrossMonthsAndYears) {
  struct Case {
    ReportDate in, out;
  };
  const Case table[] = {
      {{"2024", "02", "28", "08"}, {"2024", "02", "29", "09"}},
      {{"2023", "02", "28", "09"}, {"2023", "03", "01", "10"}},
      {{"2024", "02", "29", "09"}, {"2024", "03", "01", "10"}},
      {{"1900", "02", "28", "09"}, {"1900", "03", "01", "10"}},
      {{"2000", "02", "28", "09"}, {"2000", "02", "29", "10"}},
      {{"2024", "12", "31", "10"}, {"2025", "01", "01", "11"}},
      {{"2024", "11", "30", "30"}, {"2024", "12", "01", "31"}},
      {{"2024", "09", "9", "9"}, {"2024", "09", "10", "10"}},
      // The 29th of February leaves the Persian boxes to be keyed by hand.
      {{"2024", "02", "29", ""}, {"2024", "03", "01", ""}},
  };
  for (const Case& c : table) {
    const ReportDate d = next_report_day(c.in);
    EXPECT_EQ(d.year + "-" + d.month + "-" + d.day + "/" + d.sh_day,
              c.out.year + "-" + c.out.month + "-" + c.out.day + "/" + c.out.sh_day)
        << c.in.year << "-" << c.in.month << "-" << c.in.day;
  }
}

}  // namespace
}  // namespace obsdesk
