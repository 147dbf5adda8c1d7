// The check shared by the BUFR tests: every value a message carries against the
// one of the SYNOP text it was made from.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>

#include "coders/bufr.h"

namespace obsdesk::test {

using Opt = std::optional<double>;

inline void expect_same(const Opt& a, const Opt& b, double tolerance, const std::string& what) {
  ASSERT_EQ(a.has_value(), b.has_value()) << what;
  if (a) {
    EXPECT_NEAR(*a, *b, tolerance) << what;
  }
}

inline Opt as_double(std::optional<int> i) { return i ? Opt(*i) : Opt(); }

// Every value the BUFR message carries, against the one of the SYNOP text.
inline void expect_round_trip(const BufrReport& sent, const BufrReport& got, const std::string& text) {
  const SynopValues& a = sent.values;
  const SynopValues& b = got.values;
  expect_same(a.temperature, b.temperature, 0.01, text + " temperature");
  expect_same(a.dew_point, b.dew_point, 0.01, text + " dew point");
  expect_same(a.max_temperature, b.max_temperature, 0.01, text + " Tmax");
  expect_same(a.min_temperature, b.min_temperature, 0.01, text + " Tmin");
  expect_same(a.ground_minimum, b.ground_minimum, 0.01, text + " ground minimum");
  expect_same(a.station_pressure, b.station_pressure, 1, text + " station pressure");
  expect_same(a.sea_level_pressure, b.sea_level_pressure, 1, text + " QFF");
  expect_same(a.tendency_pa, b.tendency_pa, 1, text + " tendency");
  expect_same(as_double(a.tendency_characteristic), as_double(b.tendency_characteristic), 0, text + " a");
  expect_same(a.visibility_m, b.visibility_m, 0, text + " visibility");
  expect_same(a.lowest_cloud_m, b.lowest_cloud_m, 0, text + " h");
  expect_same(as_double(a.total_cloud), as_double(b.total_cloud), 0, text + " N");
  expect_same(as_double(a.wind_direction), as_double(b.wind_direction), 0, text + " dd");
  expect_same(a.wind_speed, b.wind_speed, 0, text + " ff");
  expect_same(a.rain.amount, b.rain.amount, 0.001, text + " RRR");
  if (a.rain.amount) {
    EXPECT_EQ(a.rain.hours, b.rain.hours) << text;
  }
  expect_same(a.rain24, b.rain24, 0.001, text + " R24");
  expect_same(as_double(a.present_weather), as_double(b.present_weather), 0, text + " ww");
  expect_same(as_double(a.past_weather1), as_double(b.past_weather1), 0, text + " W1");
  expect_same(as_double(a.past_weather2), as_double(b.past_weather2), 0, text + " W2");
  if (a.cloud_group) {
    expect_same(as_double(a.low_amount), as_double(b.low_amount), 0, text + " Nh");
    expect_same(as_double(a.cl), as_double(b.cl), 0, text + " CL");
    expect_same(as_double(a.cm), as_double(b.cm), 0, text + " CM");
    expect_same(as_double(a.ch), as_double(b.ch), 0, text + " CH");
  }
  expect_same(as_double(a.ground_state), as_double(b.ground_state), 0, text + " E");
  expect_same(a.snow_depth_m, b.snow_depth_m, 0.001, text + " sss");
  EXPECT_EQ(a.layers, b.layers) << text;
  expect_same(sent.relative_humidity, got.relative_humidity, 0, text + " RH");
  EXPECT_EQ(got.station.numcod, sent.station.numcod) << text;
  EXPECT_EQ(got.station.wigos_local, sent.station.wigos_local) << text;
  EXPECT_EQ(std::make_tuple(got.year, got.month, got.day, got.hour), std::make_tuple(sent.year, sent.month, sent.day, sent.hour)) << text;
}

}  // namespace obsdesk::test
