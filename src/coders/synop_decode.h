// Reads a coded SYNOP text (the txtSYN of the coder: section 1, then "333" and
// section 3, closed by "=") back into values in SI units. The BUFR message is
// built from these values, so that the character report and the binary one
// always say the same thing: what the text does not carry is missing here too.
//
// A group that is there but not observed ("/" in its figures) gives a missing
// value; a group the reader cannot place or read is skipped, never guessed.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace obsdesk {

// An amount of precipitation and the hours it covers. A trace is -0.1 kg/m2.
struct Precipitation {
  std::optional<double> amount;  // kg/m2 (mm)
  int hours = 0;                 // the period ending at the observation
};

// One layer of the 8NsChshs groups of section 3.
struct CloudLayer {
  std::optional<int> amount;       // Ns, oktas (9: sky obscured)
  std::optional<int> genus;        // C, 0 cirrus ... 9 cumulonimbus
  std::optional<double> height_m;  // base of the layer, metres
  bool operator==(const CloudLayer&) const = default;
};

struct SynopValues {
  // iRiXhVV
  std::optional<int> iR, iX;
  std::optional<double> lowest_cloud_m;  // lower bound of the h class
  std::optional<double> visibility_m;
  // Nddff, 00fff
  std::optional<int> total_cloud;  // N, oktas (9: sky obscured)
  std::optional<int> wind_direction;  // degrees; 0 for calm and for a variable wind
  std::optional<double> wind_speed;   // m/s
  bool wind_variable = false;
  // 1SnTTT, 2SnTdTdTd, kelvin
  std::optional<double> temperature, dew_point;
  // 3P0P0P0, 4PPPP, Pa
  std::optional<double> station_pressure, sea_level_pressure;
  // 5appp
  std::optional<int> tendency_characteristic;
  std::optional<double> tendency_pa;  // signed by the characteristic
  // 6RRRtR
  Precipitation rain;
  // 7wwW1W2
  std::optional<int> present_weather, past_weather1, past_weather2;
  // 8NhCLCMCH
  std::optional<int> low_amount, cl, cm, ch;
  bool cloud_group = false;  // an 8NhCLCMCH group was coded

  // Section 3
  bool section3 = false;
  std::optional<double> max_temperature, min_temperature;  // 1SnTxTxTx, 2SnTnTnTn
  std::optional<int> ground_state;       // E of 3EsnTgTg, or 10 + E' of 4E'sss
  std::optional<double> ground_minimum;  // TgTg of 3EsnTgTg, kelvin
  std::optional<double> snow_depth_m;    // sss; -0.01 under half a centimetre, -0.02 patchy
  std::optional<double> rain24;          // 7R24R24R24R24, kg/m2, trace -0.1
  std::vector<CloudLayer> layers;        // the 8NsChshs groups, in their order
};

// The values of a coded SYNOP text. An empty text gives no values at all.
SynopValues decode_synop(std::string_view text);

// The visibility of the VV code, metres: 00 is "below 100 m", given as 0; 01
// to 50 in hundreds of metres, 56 to 80 in kilometres above 50, 81 to 89 in
// steps of five kilometres from 35 km. A number wider than two figures (the
// coder writes very long visibilities that have no code as they are) is metres.
std::optional<double> visibility_of_vv(std::string_view vv);

// The height of the hshs code of section 3, metres: 00 to 50 in steps of 30 m,
// 56 to 80 in steps of 300 m from 1800, 81 to 89 in steps of 1500 m from 10500.
// A four-figure code is the height in metres itself.
std::optional<double> height_of_hshs(std::string_view hshs);

}  // namespace obsdesk
