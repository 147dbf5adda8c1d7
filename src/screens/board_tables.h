// The small code tables of the boards: past weather W, the sky letters, the state
// of the ground E and E', and the iR and iX indicators.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

// Past weather W1 and W2: the figure and its picture, "W0" to "W9".
struct PastWeather {
  std::string_view figure;
  std::string_view picture;
};
const std::array<PastWeather, 10>& past_weather_table();

// The sky letters. Each button writes its text (with the leading blank); the
// cloud amount opens the buttons of one sky, whatever the "y".
enum class Sky { b, c, bc, o };
struct SkyLetter {
  std::string_view button;   // "b", "by", ...
  std::string_view text;     // " b", " by", ...
  std::string_view picture;  // "sky_b", ...
  Sky sky;
  bool y;
};
const std::array<SkyLetter, 8>& sky_letter_table();
// The skies a cloud amount A shuts: below 3 all but b, 3 to 5 all but bc, 6 and
// 7 all but c, 8 b and bc, 9 none.
bool sky_shut_by_amount(Sky sky, double amount);

// State of the ground: e0 to e9 without snow (E), s0 to s9 with snow or ice (E').
struct GroundState {
  std::string_view button;   // "e5", "s5"
  std::string_view figure;   // "5"
  std::string_view picture;  // "E5", "Ep5"
  bool snow;
};
const std::array<GroundState, 20>& ground_state_table();

// The texts of the iR list (iR 1 to 4) and of the iX list (iX 1 to 6).
const std::vector<std::string>& ir_texts();
const std::vector<std::string>& ix_texts();

}  // namespace obsdesk
