#include "symbols/meanings.h"

#include <array>
#include <charconv>

namespace obsdesk {

namespace {

// Present weather ww, by code figure.
constexpr std::array<std::string_view, 100> kPresentWeather = {
    "Cloud development not observed",
    "Clouds dissolving or becoming less developed",
    "State of sky on the whole unchanged",
    "Clouds forming or developing",
    "Visibility reduced by smoke",
    "Haze",
    "Widespread dust in suspension, not raised by wind",
    "Dust or sand raised by wind",
    "Well-developed dust or sand whirls",
    "Duststorm or sandstorm within sight",
    "Mist",
    "Patches of shallow fog",
    "More or less continuous shallow fog",
    "Lightning visible, no thunder heard",
    "Precipitation within sight, not reaching the ground",
    "Precipitation within sight, reaching the ground, distant",
    "Precipitation within sight, reaching the ground, near",
    "Thunderstorm, no precipitation at the station",
    "Squalls",
    "Funnel cloud",
    "Drizzle or snow grains in the past hour",
    "Rain in the past hour",
    "Snow in the past hour",
    "Rain and snow or ice pellets in the past hour",
    "Freezing drizzle or freezing rain in the past hour",
    "Shower of rain in the past hour",
    "Shower of snow, or of rain and snow, in the past hour",
    "Shower of hail, or of rain and hail, in the past hour",
    "Fog or ice fog in the past hour",
    "Thunderstorm in the past hour",
    "Slight or moderate duststorm, has decreased",
    "Slight or moderate duststorm, no change",
    "Slight or moderate duststorm, has begun or increased",
    "Severe duststorm, has decreased",
    "Severe duststorm, no change",
    "Severe duststorm, has begun or increased",
    "Slight or moderate drifting snow, low",
    "Heavy drifting snow, low",
    "Slight or moderate blowing snow, high",
    "Heavy blowing snow, high",
    "Fog at a distance",
    "Fog in patches",
    "Fog, sky visible, has become thinner",
    "Fog, sky invisible, has become thinner",
    "Fog, sky visible, no change",
    "Fog, sky invisible, no change",
    "Fog, sky visible, has begun or become thicker",
    "Fog, sky invisible, has begun or become thicker",
    "Fog depositing rime, sky visible",
    "Fog depositing rime, sky invisible",
    "Drizzle, intermittent, slight",
    "Drizzle, continuous, slight",
    "Drizzle, intermittent, moderate",
    "Drizzle, continuous, moderate",
    "Drizzle, intermittent, heavy",
    "Drizzle, continuous, heavy",
    "Freezing drizzle, slight",
    "Freezing drizzle, moderate or heavy",
    "Drizzle and rain, slight",
    "Drizzle and rain, moderate or heavy",
    "Rain, intermittent, slight",
    "Rain, continuous, slight",
    "Rain, intermittent, moderate",
    "Rain, continuous, moderate",
    "Rain, intermittent, heavy",
    "Rain, continuous, heavy",
    "Freezing rain, slight",
    "Freezing rain, moderate or heavy",
    "Rain or drizzle and snow, slight",
    "Rain or drizzle and snow, moderate or heavy",
    "Snow, intermittent, slight",
    "Snow, continuous, slight",
    "Snow, intermittent, moderate",
    "Snow, continuous, moderate",
    "Snow, intermittent, heavy",
    "Snow, continuous, heavy",
    "Diamond dust",
    "Snow grains",
    "Isolated star-like snow crystals",
    "Ice pellets",
    "Rain showers, slight",
    "Rain showers, moderate or heavy",
    "Rain showers, violent",
    "Showers of rain and snow, slight",
    "Showers of rain and snow, moderate or heavy",
    "Snow showers, slight",
    "Snow showers, moderate or heavy",
    "Showers of snow pellets or small hail, slight",
    "Showers of snow pellets or small hail, moderate or heavy",
    "Showers of hail, no thunder, slight",
    "Showers of hail, no thunder, moderate or heavy",
    "Slight rain, thunderstorm in the past hour",
    "Moderate or heavy rain, thunderstorm in the past hour",
    "Slight snow or hail, thunderstorm in the past hour",
    "Moderate or heavy snow or hail, thunderstorm in the past hour",
    "Thunderstorm, slight or moderate, with rain or snow",
    "Thunderstorm, slight or moderate, with hail",
    "Thunderstorm, heavy, with rain or snow",
    "Thunderstorm with duststorm or sandstorm",
    "Thunderstorm, heavy, with hail",
};

// Past weather W1, W2.
constexpr std::array<std::string_view, 10> kPastWeather = {
    "Cloud covering half of the sky or less",
    "Cloud covering more than half of the sky during part of the period",
    "Cloud covering more than half of the sky throughout the period",
    "Sandstorm, duststorm or blowing snow",
    "Fog or ice fog or thick haze",
    "Drizzle",
    "Rain",
    "Snow, or rain and snow mixed",
    "Shower(s)",
    "Thunderstorm(s)",
};

// State of the ground without snow or measurable ice cover, E.
constexpr std::array<std::string_view, 10> kGround = {
    "Surface dry",
    "Surface moist",
    "Surface wet, standing water",
    "Flooded",
    "Surface frozen",
    "Glaze on the ground",
    "Loose dry dust or sand, not covering the ground completely",
    "Thin cover of loose dry dust or sand covering the ground",
    "Moderate or thick cover of loose dry dust or sand",
    "Extremely dry with cracks",
};

// State of the ground with snow or measurable ice cover, E'.
constexpr std::array<std::string_view, 10> kGroundSnow = {
    "Ground predominantly covered by ice",
    "Compact or wet snow covering less than half of the ground",
    "Compact or wet snow covering at least half, not completely",
    "Even layer of compact or wet snow covering the ground",
    "Uneven layer of compact or wet snow covering the ground",
    "Loose dry snow covering less than half of the ground",
    "Loose dry snow covering at least half, not completely",
    "Even layer of loose dry snow covering the ground",
    "Uneven layer of loose dry snow covering the ground",
    "Snow covering the ground completely, deep drifts",
};

// Pressure tendency characteristic a.
constexpr std::array<std::string_view, 9> kTendency = {
    "Increasing, then decreasing",
    "Increasing, then steady, or increasing more slowly",
    "Increasing steadily or unsteadily",
    "Decreasing or steady, then increasing",
    "Steady",
    "Decreasing, then increasing",
    "Decreasing, then steady, or decreasing more slowly",
    "Decreasing steadily or unsteadily",
    "Steady or increasing, then decreasing",
};

// The code figure after a prefix, or -1 when the rest is not a whole number.
int figure_after(std::string_view id, std::string_view prefix) {
  if (!id.starts_with(prefix) || id.size() == prefix.size()) return -1;
  int n = -1;
  const auto rest = id.substr(prefix.size());
  const auto [end, ec] = std::from_chars(rest.data(), rest.data() + rest.size(), n);
  if (ec != std::errc() || end != rest.data() + rest.size()) return -1;
  return n;
}

template <std::size_t N>
std::string_view row(const std::array<std::string_view, N>& table, std::string_view id, std::string_view prefix,
                     std::size_t digits) {
  const int n = figure_after(id, prefix);
  if (n < 0 || static_cast<std::size_t>(n) >= N || id.size() != prefix.size() + digits) return {};
  return table[static_cast<std::size_t>(n)];
}

}  // namespace

std::string_view symbol_meaning(std::string_view id) {
  if (id.starts_with("ww")) return row(kPresentWeather, id, "ww", 2);
  if (id.starts_with("Ep")) return row(kGroundSnow, id, "Ep", 1);
  if (id.starts_with("E")) return row(kGround, id, "E", 1);
  if (id.starts_with("W")) return row(kPastWeather, id, "W", 1);
  if (id.starts_with("ntf")) return row(kTendency, id, "ntf", 1);
  if (id.starts_with("a")) return row(kTendency, id, "a", 1);
  return {};
}

}  // namespace obsdesk
