// The SYNOP text read back into values, and those values through a BUFR message
// and back: what the centre decodes must be what the character report says.
#include "coders/bufr.h"

#include <eccodes.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <optional>

#include "coders/synop_decode.h"
#include "coders/bufr_check.h"

namespace obsdesk {
namespace {

using Opt = std::optional<double>;

BufrReport report_of(const std::string& text, int hour = 12) {
  BufrReport r;
  r.station = {"40754", "40754", "MEHRABAD AIRPORT", 35.6833, 51.3167, 1190.8};
  r.year = 2025;
  r.month = 1;
  r.day = 31;
  r.hour = hour;
  r.values = decode_synop(text);
  r.relative_humidity = 41;
  return r;
}

// Groups read one by one: each case names the value it pins.
TEST(SynopDecode, GroupsGiveTheirValues) {
  struct Case {
    const char* text;
    std::function<Opt(const SynopValues&)> value;
    Opt expected;
  };
  const Case cases[] = {
      // Temperatures in kelvin, the sign figure taken; "0" is 273.15.
      {"32558 52404 10254=", [](auto& v) { return v.temperature; }, 298.55},
      {"32558 52404 11005=", [](auto& v) { return v.temperature; }, 272.65},
      {"32558 52404 10000=", [](auto& v) { return v.temperature; }, 273.15},
      {"32558 52404 2////=", [](auto& v) { return v.dew_point; }, std::nullopt},
      // Pressures: the thousands figure comes back below 500 hPa.
      {"32558 52404 30125=", [](auto& v) { return v.station_pressure; }, 101250},
      {"32558 52404 38780=", [](auto& v) { return v.station_pressure; }, 87800},
      {"32558 52404 39999=", [](auto& v) { return v.station_pressure; }, 99990},
      // Tendency signed by its characteristic.
      {"32558 52404 57014=", [](auto& v) { return v.tendency_pa; }, -140},
      {"32558 52404 52021=", [](auto& v) { return v.tendency_pa; }, 210},
      // Precipitation: a trace, tenths, a whole amount, not observed; tR hours.
      {"12558 52404 69901=", [](auto& v) { return v.rain.amount; }, -0.1},
      {"12558 52404 69933=", [](auto& v) { return v.rain.amount; }, 0.3},
      {"12558 52404 60102=", [](auto& v) { return v.rain.amount; }, 10},
      {"12558 52404 6///1=", [](auto& v) { return v.rain.amount; }, std::nullopt},
      {"12558 52404 60023=", [](auto& v) { return Opt(v.rain.hours); }, 18},
      // Visibility codes and the height class of h.
      {"32558 52404=", [](auto& v) { return v.visibility_m; }, 8000},
      {"32502 52404=", [](auto& v) { return v.visibility_m; }, 200},
      {"32589 52404=", [](auto& v) { return v.visibility_m; }, 75000},
      {"32558 52404=", [](auto& v) { return v.lowest_cloud_m; }, 600},
      {"3258 52404=", [](auto& v) { return v.visibility_m; }, 8000},  // h left out: the group one short
      {"3258 52404=", [](auto& v) { return v.lowest_cloud_m; }, std::nullopt},
      // Wind: variable, calm, speed of 100 or more.
      {"32558 59903=", [](auto& v) { return test::as_double(v.wind_direction); }, 0},
      {"32558 50000=", [](auto& v) { return v.wind_speed; }, 0},
      {"32558 524// OO//=", [](auto& v) { return v.wind_speed; }, std::nullopt},
      // Section 3: 2FFFF after 55SSS is radiation, not the night minimum.
      {"32558 52404 333 21062=", [](auto& v) { return v.min_temperature; }, 266.95},
      {"32558 52404 333 55080 21234=", [](auto& v) { return v.min_temperature; }, std::nullopt},
      {"32558 52404 333 10106=", [](auto& v) { return v.max_temperature; }, 283.75},
      {"32558 52404 333 35112=", [](auto& v) { return v.ground_minimum; }, 261.15},
      {"32558 52404 333 35112=", [](auto& v) { return test::as_double(v.ground_state); }, 5},
      {"32558 52404 333 44997=", [](auto& v) { return v.snow_depth_m; }, -0.01},
      {"32558 52404 333 44012=", [](auto& v) { return test::as_double(v.ground_state); }, 14},
      {"32558 52404 333 79999=", [](auto& v) { return v.rain24; }, -0.1},
      {"32558 52404 333 70012=", [](auto& v) { return v.rain24; }, 1.2},
      // Section 1's 1SnTTT is not taken for Tmax, nor its 2 group for Tmin.
      {"32558 52404 10254 20121=", [](auto& v) { return v.max_temperature; }, std::nullopt},
  };
  for (const Case& c : cases) {
    const Opt got = c.value(decode_synop(c.text));
    ASSERT_EQ(got.has_value(), c.expected.has_value()) << c.text;
    if (got) {
      EXPECT_NEAR(*got, *c.expected, 1e-9) << c.text;
    }
  }
}

TEST(SynopDecode, LayersKeepTheirOrderAndHeights) {
  const SynopValues v = decode_synop("32558 52404 83100 333 83830 86650 8791500 89/12 85956=");
  ASSERT_EQ(v.layers.size(), 4u);  // the vertical visibility is no layer
  EXPECT_EQ(v.layers[0], (CloudLayer{3, 8, 900.0}));
  EXPECT_EQ(v.layers[1], (CloudLayer{6, 6, 1500.0}));
  EXPECT_EQ(v.layers[2], (CloudLayer{7, 9, 1500.0}));  // the four-figure height of the 1501-1799 band
  EXPECT_EQ(v.layers[3], (CloudLayer{5, 9, 1800.0}));
}

// The reports the golden days do not reach.
TEST(Bufr, EdgeReportsComeBackAsTheyWereCoded) {
  const char* texts[] = {
      "32558 52404 10254 20121 30125 40150 53012 60001 83100=",               // no section 3
      "32558 00000 10254 20121 30125 40150 53012 60001 83100 333=",          // calm
      "32558 52404 10254 30125 40150 53012 60001 83100 333=",                // no dew point
      "12558 52404 10254 20121 30125 40150 53012 69901 83100 333 79999=",    // a trace of rain
      "11558 82404 10254 20121 30125 40150 53012 60101 76163 88/// 333 35112 44997=",  // sky hidden, weather, snow
      "32558 59903 11005 21020 38780 40150 57014 60001 83100 333 83830 86650 8791500 88659=",  // four layers
      "12958 02605 11020 21090 38808 40195 57005 6///3 333 7////=",          // clear sky, rain not measured
  };
  for (const char* text : texts) {
    const BufrReport sent = report_of(text);
    const auto got = decode_bufr(encode_bufr(sent));
    ASSERT_EQ(got.size(), 1u) << text;
    test::expect_round_trip(sent, got[0], text);
  }
}

// The elements read by their plain names, without the encoder's own walk of the
// template: a value put at the wrong rank would read back right through that
// walk and still be wrong for the centre.
TEST(Bufr, ElementsSitWhereTheCentreLooksForThem) {
  const std::string msg =
      encode_bufr(report_of("32558 52404 10254 20121 30125 40150 53012 60001 83100 333 10106 83830 86650="));
  std::unique_ptr<codes_handle, decltype(&codes_handle_delete)> h(
      codes_handle_new_from_message(nullptr, msg.data(), msg.size()), codes_handle_delete);
  ASSERT_TRUE(h);
  ASSERT_EQ(codes_set_long(h.get(), "unpack", 1), 0);
  const auto real = [&](const char* key) {
    double d = 0;
    EXPECT_EQ(codes_get_double(h.get(), key, &d), 0) << key;
    return d;
  };
  EXPECT_NEAR(real("airTemperature"), 298.55, 0.01);
  EXPECT_NEAR(real("#1#heightOfBaseOfCloud"), 600, 0);
  EXPECT_EQ(real("#1#cloudType"), 31);   // CL
  EXPECT_EQ(real("#2#cloudType"), 20);   // CM
  EXPECT_EQ(real("#3#cloudType"), 10);   // CH
  EXPECT_EQ(real("#4#cloudType"), 8);    // first layer of section 3
  EXPECT_EQ(real("#3#cloudAmount"), 6);  // second layer
  EXPECT_EQ(real("#1#delayedDescriptorReplicationFactor"), 2);
  EXPECT_EQ(real("cloudCoverTotal"), 63);
  EXPECT_EQ(real("#4#timePeriod"), -6);  // after the past weather and the two sunshine periods: tR 1
  EXPECT_NEAR(real("#1#totalPrecipitationOrTotalWaterEquivalent"), 0, 1e-9);
  EXPECT_NEAR(real("maximumTemperatureAtHeightAndOverPeriodSpecified"), 283.75, 0.01);
  EXPECT_EQ(real("windDirection"), 240);
  EXPECT_EQ(real("windSpeed"), 4);
  EXPECT_EQ(real("instrumentationForWindMeasurement"), 8);
  // Section 1 tells the time of the data and a main synoptic hour.
  EXPECT_EQ(real("typicalYear"), 2025);
  EXPECT_EQ(real("typicalDay"), 31);
  EXPECT_EQ(real("typicalHour"), 12);
  EXPECT_EQ(real("internationalDataSubCategory"), 2);
  char wigos[32] = {};
  size_t n = sizeof wigos;
  ASSERT_EQ(codes_get_string(h.get(), "wigosLocalIdentifierCharacter", wigos, &n), 0);
  EXPECT_STREQ(wigos, "40754");
}

TEST(Bufr, DamagedBytesAreRefusedByName) {
  std::string msg = encode_bufr(report_of("32558 52404 10254="));
  EXPECT_THROW(decode_bufr(msg.substr(0, msg.size() / 2)), BufrError);
  EXPECT_TRUE(decode_bufr("").empty());
}

}  // namespace
}  // namespace obsdesk
