// The pressure and humidity formulae as pure functions: the two station cases,
// meteorological tables and the standard atmosphere as independent references,
// the branch points, and the runs that stop early or fault.
#include <gtest/gtest.h>

#include <cmath>

#include "screens/record.h"
#include "core/textnum.h"
#include "physics/barometer.h"
#include "physics/psychrometry.h"

namespace obsdesk {
namespace {

using Nine = std::vector<std::string>;

// The published fields in the order RH TC QFE EHPA QFF QNH QIN H850 TDEW.
Nine nine(const PublishedPressure& p) { return {p.RH, p.TC, p.QFE, p.EHPA, p.QFF, p.QNH, p.QIN, p.H850, p.TDEW}; }

struct StationCase {
  const char* name;
  double h, q1, q2;
  const char* t12;
  double tdry, twet, tp, pread;
  Nine expected;
};

TEST(Pressure, StationCasesComeOutToTheLastPublishedDigit) {
  const StationCase table[] = {
      {"Tehran", 1190.8, 35, 41, "18", 20, 12, 20, 875.4,
       {"36.1", "-4", "871.4", "8.45", "999.1", "1005.4", "29.69", "1402.6", "4.5"}},
      {"coast", 21, 29, 36, "10", -2.5, -3.1, 15, 1015.0,
       {"84.2", "-4", "1011", "4.28", "1013.6", "1013.2", "29.92", "1429.1", "-4.8"}},
  };
  for (const StationCase& c : table) {
    PressureInputs in{c.h, c.q1, c.q2, c.t12, c.tdry, c.twet, c.tp, c.pread};
    PressureResults kept;
    const PressureReport r = DAMA_FASHAR(in, kept);
    EXPECT_TRUE(r.notices.empty()) << c.name;
    // Tehran's dew point 4.55 lies under the half: 4.5.
    EXPECT_EQ(nine(publish(kept, kSynop)), c.expected) << c.name;
  }
}

// Saturation vapour pressure, hPa, from the WMO/Smithsonian tables.
TEST(Saturation, AgreesWithTheMeteorologicalTables) {
  struct Row {
    double celsius;
    bool ice;
    double table_hpa;
  } const rows[] = {
      {0, false, 6.108},   {10, false, 12.27}, {20, false, 23.37}, {30, false, 42.43},
      {-10, false, 2.863}, {-10, true, 2.599}, {-20, true, 1.032}, {-30, true, 0.3802},
  };
  for (const Row& r : rows) {
    const double T = r.celsius + 273.16;
    const double es = r.ice ? es_ice(T) : es_water(T, kP0Goff);
    EXPECT_NEAR(es, r.table_hpa, r.table_hpa * 0.002) << r.celsius << (r.ice ? " ice" : " water");
  }
  // At the triple point both formulae meet within a few hundredths.
  EXPECT_NEAR(es_ice(273.16), es_water(273.16, kP0Goff), 0.002);
}

// QNH reduces a station reading by the ICAO standard atmosphere: a station
// reading the standard pressure of its height has a QNH of about 1013.25.
TEST(Pressure, QnhFollowsTheStandardAtmosphere) {
  struct Row {
    double h, standard_hpa;
  } const rows[] = {{0, 1013.25}, {500, 954.61}, {1000, 898.76}, {1500, 845.59}, {2000, 795.01}};
  for (const Row& r : rows) {
    PressureInputs in{r.h, 35, 0, "15", 15, 10, 0, 0};
    in.mercury = false;
    in.barograph = r.standard_hpa;
    PressureResults kept;
    DAMA_FASHAR(in, kept);
    EXPECT_NEAR(kept.QNHRAW, 1013.25, 0.5) << r.h;
    EXPECT_NEAR(kept.QINRAW, 29.92, 0.02) << r.h;
  }
}

TEST(Psychrometry, WetBulbBelowOneTenthIsIcedAndRoundedToThreeDecimals) {
  struct Row {
    double twet;
    double expected;  // worked independently
  } const rows[] = {{0.05, 2.925}, {0.0999, 2.982}, {0.1, 2.6287316136197125}, {-3.1, 4.28}};
  for (const Row& r : rows) {
    const double tdry = r.twet == -3.1 ? -2.5 : 5;
    const double p = r.twet == -3.1 ? 1010.9903901373126 : 900;
    EXPECT_NEAR(vapour_pressure(tdry, r.twet, p), r.expected, 1e-9) << r.twet;
  }
}

TEST(Psychrometry, DewPointInvertsTheSaturationOverWater) {
  for (double c : {-30.0, -10.0, 0.0, 4.5, 25.0, 40.0}) {
    const double e = es_water(c + kKelvin, kP0Goff);
    EXPECT_NEAR(dew_point_kelvin(e) - kKelvin, c, 1e-6) << c;
  }
}

// The branch of the wet-bulb run is chosen by the dry bulb, not by the wet bulb.
TEST(Psychrometry, InverseWetBulbTakesItsBranchFromTheDryBulb) {
  struct Row {
    double tdry, rh, p;
    double wet;  // worked independently, before rounding
  } const rows[] = {
      {0.05, 50, 871.36, -2.780443325166945},  // ice
      {0.1, 50, 871.36, -2.6805927499386932},  // water, though the wet bulb is below 0
      {20, 100, 871.36, 19.998627969939136},
      {-2.5, 84.2, 1010.99, -3.1003681178457403},
  };
  for (const Row& r : rows) {
    const double e = round_to(es_water(r.tdry + kKelvin, kP0Humidity) * r.rh / 100, 2);
    EXPECT_NEAR(wet_bulb(r.tdry, e, r.p), r.wet, 1e-6) << r.tdry << " " << r.rh;
  }
}

TEST(Psychrometry, ModuleInversThenForwardGivesTheRoundedWetBulbsHumidity) {
  PressureInputs in{1190.8, 35, 41, "18", 20, 36.1, 20, 875.4};
  PressureResults kept;
  EXPECT_TRUE(ModuleINVERS(in, kept).notices.empty());
  EXPECT_DOUBLE_EQ(kept.E, 8.44);
  EXPECT_DOUBLE_EQ(kept.TWETRAW, 12);
  EXPECT_EQ(num(kept.TDRAW), "4.5");  // one decimal from the inverse
  in.TWET = round_to(kept.TWETRAW, 1);
  DAMA_FASHAR(in, kept);
  EXPECT_EQ(publish(kept, kSynop).RH, "36.1");
  EXPECT_EQ(publish(kept, kSynop).TDEW, "4.5");

  // Saturated air at 20: the wet bulb is the dry bulb.
  PressureInputs wet{1190.8, 35, 41, "18", 20, 100, 20, 875.4};
  ModuleINVERS(wet, kept);
  EXPECT_DOUBLE_EQ(kept.TWETRAW, 20);
}

TEST(Pressure, VapourBelowZeroStopsAfterTheStationPressure) {
  PressureResults kept;
  DAMA_FASHAR({1190.8, 35, 41, "18", 20, 12, 20, 875.4}, kept);
  const PressureResults before = kept;
  // A wet bulb far below a warm dry bulb: the iced formula goes negative.
  const PressureReport r = DAMA_FASHAR({1190.8, 35, 41, "18", 30, 0.05, 10, 880.0}, kept);
  EXPECT_TRUE(r.vapour_below_zero);
  ASSERT_EQ(r.notices.size(), 1u);
  EXPECT_FALSE(r.notices[0].fault);
  EXPECT_EQ(r.notices[0].text, kMsgCheckWetBulb);
  EXPECT_LT(kept.E, 0);
  EXPECT_NE(kept.TC, before.TC);  // the correction to station pressure ran
  EXPECT_NE(kept.P, before.P);
  EXPECT_EQ(kept.QFFSTR, before.QFFSTR);  // the rest stands from the call before
  EXPECT_EQ(kept.H850STR, before.H850STR);
  EXPECT_EQ(kept.QNHRAW, before.QNHRAW);
  EXPECT_EQ(kept.TDRAW, before.TDRAW);
  EXPECT_EQ(kept.RHRAW, before.RHRAW);
}

TEST(Pressure, HumidityOutOfRangeIsToldAndTheValuesStand) {
  struct Row {
    double tdry, twet;
    bool told;
  } const rows[] = {{10, 12, true}, {20, 20, false}, {20, 12, false}};
  for (const Row& r : rows) {
    PressureResults kept;
    const PressureReport rep = DAMA_FASHAR({1190.8, 35, 41, "18", r.tdry, r.twet, 20, 875.4}, kept);
    EXPECT_EQ(rep.humidity_out_of_range, r.told) << r.tdry << "/" << r.twet;
    if (r.told) {
      ASSERT_EQ(rep.notices.size(), 1u);
      EXPECT_EQ(rep.notices[0].text, kMsgHumidityRange);
      EXPECT_GT(kept.RHRAW, 100);
      EXPECT_NE(kept.TDRAW, 0);
    }
  }
}

// Nothing a typed text can give puts NaN or infinity into a published field:
// a faulting step is told by its description and leaves its value standing.
TEST(Pressure, FaultsAreToldAndNeverPublishNaN) {
  struct Row {
    const char* name;
    PressureInputs in;
    bool mercury;
    double barograph;
    const char* fault;
  } const rows[] = {
      {"no station pressure", {1190.8, 35, 41, "", 20, 12, 0, 0}, false, 0, fault_math::kDivisionByZero},
      {"absolute zero wet bulb", {1190.8, 35, 41, "", 20, -273.16, 0, 875}, true, 0, fault_math::kDivisionByZero},
      {"below absolute zero", {0, 0, 0, "", -300, -300, 0, 875}, true, 0, fault_math::kInvalidCall},
      {"overflowing", {1e308, 0, 0, "1e308", 1e308, 1e308, 0, 1e308}, true, 0, fault_math::kOverflow},
  };
  for (const Row& r : rows) {
    PressureInputs in = r.in;
    in.mercury = r.mercury;
    in.barograph = r.barograph;
    PressureResults kept;
    const PressureReport rep = DAMA_FASHAR(in, kept);
    bool told = false;
    for (const PressureNotice& n : rep.notices) told |= n.fault && n.text == r.fault;
    EXPECT_TRUE(told) << r.name;
    for (const std::string& t : nine(publish(kept, kSynop))) {
      EXPECT_EQ(t.find("nan"), std::string::npos) << r.name << " " << t;
      EXPECT_EQ(t.find("inf"), std::string::npos) << r.name << " " << t;
      EXPECT_TRUE(std::isfinite(val(t))) << r.name;
    }
  }
}

TEST(Pressure, VapourPressureOfExactlyZeroFaultsTheDewPoint) {
  // Iced wet bulb with the station pressure that cancels its saturation.
  const double p = es_ice(-10 + kKelvin) / (0.00072 * 5);
  PressureInputs in{0, 35, 0, "", -5, -10, 0, 0};
  in.mercury = false;
  in.barograph = p;
  PressureResults kept;
  kept.TDRAW = -7.25;
  const PressureReport rep = DAMA_FASHAR(in, kept);
  EXPECT_FALSE(rep.vapour_below_zero);
  EXPECT_EQ(kept.E, 0);
  ASSERT_EQ(rep.notices.size(), 2u);
  EXPECT_TRUE(rep.notices[0].fault);
  EXPECT_EQ(rep.notices[0].text, fault_math::kInvalidCall);
  EXPECT_EQ(rep.notices[1].text, kMsgHumidityRange);
  EXPECT_EQ(kept.TDRAW, -7.25);
}

TEST(Pressure, PublishingByKindAndTheInchesText) {
  PressureResults kept;
  kept.QFFSTR = "999.149999";
  kept.H850STR = "1402.55666";
  struct Row {
    std::string_view kind;
    double qin;
    const char *qff, *h850, *text;
  } const rows[] = {
      {kSynop, 29.9, "999.1", "1402.6", "29.90"},     {kSynMet, 29.92, "999.1", "1402.6", "29.92"},
      {kMetar, 30.0, "+++++", "+++++", "30"},         {kSpeci, 29.899, "+++++", "+++++", "29.90"},
      {kMetar30, 9.55, "+++++", "+++++", "9.550"},    {kSynop, 9.5, "999.1", "1402.6", "9.5"},
  };
  for (const auto& r : rows) {
    kept.QINRAW = r.qin;
    const PublishedPressure p = publish(kept, r.kind);
    EXPECT_EQ(p.QFF, r.qff) << r.kind;
    EXPECT_EQ(p.H850, r.h850) << r.kind;
    EXPECT_EQ(p.QIN, r.text) << r.qin;
  }
}

}  // namespace
}  // namespace obsdesk
