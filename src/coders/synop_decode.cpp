#include "coders/synop_decode.h"

#include <array>
#include <string>

namespace obsdesk {

namespace {

constexpr double kZeroCelsius = 273.15;

bool all_digits(std::string_view s) {
  if (s.empty()) return false;
  for (char c : s)
    if (c < '0' || c > '9') return false;
  return true;
}

// A run of figures as a number; "/" anywhere, or anything else, is missing.
std::optional<int> figures(std::string_view s) {
  if (!all_digits(s)) return std::nullopt;
  int v = 0;
  for (char c : s) v = v * 10 + (c - '0');
  return v;
}

std::optional<int> figure_at(std::string_view g, std::size_t i) {
  return i < g.size() ? figures(g.substr(i, 1)) : std::nullopt;
}

// SnTTT (sign figure 0 or 1, then tenths of a degree) as kelvin.
std::optional<double> signed_tenths(std::string_view g) {
  const auto sign = figure_at(g, 1);
  const auto t = g.size() == 5 ? figures(g.substr(2)) : std::nullopt;
  if (!sign || !t || *sign > 1) return std::nullopt;
  return (*sign == 1 ? -*t : *t) / 10.0 + kZeroCelsius;
}

// P0P0P0P0 or PPPP: tenths of a hectopascal without the thousands figure.
std::optional<double> pressure_pa(std::string_view g) {
  const auto p = g.size() == 5 ? figures(g.substr(1)) : std::nullopt;
  if (!p) return std::nullopt;
  double hpa = *p / 10.0;
  if (hpa < 500) hpa += 1000;
  return hpa * 100;
}

// The hours of tR, the period of the precipitation group.
constexpr std::array<int, 10> kRainHours = {0, 6, 12, 18, 24, 1, 2, 3, 9, 15};

// RRR of 6RRRtR: 990 is a trace, 991 to 999 tenths of a millimetre.
std::optional<double> rrr(std::string_view s) {
  const auto r = figures(s);
  if (!r) return std::nullopt;
  if (*r == 990) return -0.1;
  if (*r > 990) return (*r - 990) / 10.0;
  return *r;
}

// The lower bound of each class of h, metres.
constexpr std::array<double, 10> kCloudBase = {0, 50, 100, 200, 300, 600, 1000, 1500, 2000, 2500};

void decode_first(const std::vector<std::string_view>& groups, SynopValues& v) {
  if (!groups.empty()) {
    const std::string_view g = groups[0];
    v.iR = figure_at(g, 0);
    v.iX = figure_at(g, 1);
    if (g.size() >= 5) {  // a height of 0 leaves h out and the group a figure short
      if (const auto h = figure_at(g, 2)) v.lowest_cloud_m = kCloudBase[*h];
      v.visibility_m = visibility_of_vv(g.substr(3));
    } else if (g.size() == 4) {
      v.visibility_m = visibility_of_vv(g.substr(2));
    }
  }
  if (groups.size() > 1 && groups[1].size() == 5) {
    const std::string_view g = groups[1];
    v.total_cloud = figure_at(g, 0);
    const auto dd = figures(g.substr(1, 2));
    const auto ff = figures(g.substr(3, 2));
    if (dd) {
      v.wind_variable = *dd == 99;
      v.wind_direction = *dd == 99 ? 0 : *dd * 10;
    }
    if (ff) v.wind_speed = *ff;
  }
  for (std::size_t i = 2; i < groups.size(); ++i) {
    const std::string_view g = groups[i];
    if (g.size() < 4) continue;
    if (g.substr(0, 2) == "00") {  // 00fff: a speed of 100 or more
      if (const auto fff = figures(g.substr(2))) v.wind_speed = *fff;
      continue;
    }
    switch (g[0]) {
      case '1': v.temperature = signed_tenths(g); break;
      case '2': v.dew_point = signed_tenths(g); break;
      case '3': v.station_pressure = pressure_pa(g); break;
      case '4': v.sea_level_pressure = pressure_pa(g); break;
      case '5': {
        const auto a = figure_at(g, 1);
        const auto ppp = g.size() == 5 ? figures(g.substr(2)) : std::nullopt;
        v.tendency_characteristic = a;
        if (a && ppp && *a <= 8) v.tendency_pa = (*a >= 5 ? -*ppp : *ppp) * 10.0;
        break;
      }
      case '6':
        if (g.size() == 5) {
          v.rain.amount = rrr(g.substr(1, 3));
          if (const auto t = figure_at(g, 4)) v.rain.hours = kRainHours[*t];
        }
        break;
      case '7':
        if (g.size() == 5) {
          v.present_weather = figures(g.substr(1, 2));
          v.past_weather1 = figure_at(g, 3);
          v.past_weather2 = figure_at(g, 4);
        }
        break;
      case '8':
        // 8NhCLCMCH; a low cloud item without a figure leaves the group one short.
        v.cloud_group = true;
        v.low_amount = figure_at(g, 1);
        if (g.size() == 5) {
          v.cl = figure_at(g, 2);
          v.cm = figure_at(g, 3);
          v.ch = figure_at(g, 4);
        } else {
          v.cm = figure_at(g, 2);
          v.ch = figure_at(g, 3);
        }
        break;
      default: break;
    }
  }
}

// The groups of section 3 in the order the coder joins them. 5EEEiE and 55SSS
// share a first figure, and the radiation group 2FFFF comes after them with the
// figure of 2SnTnTnTn: a group is taken as the first kind, at or after the last
// one found, whose lead it has.
enum class Kind { Tmax, Tmin, Ground, Snow, Evaporation, Sunshine, Radiation, Rain24, Layer };
struct Lead {
  Kind kind;
  std::string_view lead;
};
constexpr std::array<Lead, 9> kSection3 = {{{Kind::Tmax, "1"},
                                            {Kind::Tmin, "2"},
                                            {Kind::Ground, "3"},
                                            {Kind::Snow, "4"},
                                            {Kind::Evaporation, "5"},
                                            {Kind::Sunshine, "55"},
                                            {Kind::Radiation, "2"},
                                            {Kind::Rain24, "7"},
                                            {Kind::Layer, "8"}}};

bool leads(std::string_view g, const Lead& l) {
  if (g.substr(0, l.lead.size()) != l.lead) return false;
  return l.kind != Kind::Evaporation || g.substr(0, 2) != "55";
}

void decode_third(const std::vector<std::string_view>& groups, SynopValues& v) {
  std::size_t at = 0;
  for (const std::string_view g : groups) {
    std::size_t k = at;
    while (k < kSection3.size() && !leads(g, kSection3[k])) ++k;
    if (k == kSection3.size() || g.size() < 4) continue;  // not a group of section 3: left out
    at = kSection3[k].kind == Kind::Layer ? k : k + 1;
    switch (kSection3[k].kind) {
      case Kind::Tmax: v.max_temperature = signed_tenths(g); break;
      case Kind::Tmin: v.min_temperature = signed_tenths(g); break;
      case Kind::Ground: {
        v.ground_state = figure_at(g, 1);
        const auto sign = figure_at(g, 2);
        const auto tg = g.size() == 5 ? figures(g.substr(3)) : std::nullopt;
        if (sign && tg && *sign <= 1) v.ground_minimum = (*sign == 1 ? -*tg : *tg) + kZeroCelsius;
        break;
      }
      case Kind::Snow: {
        if (const auto e = figure_at(g, 1)) v.ground_state = 10 + *e;
        const auto sss = g.size() == 5 ? figures(g.substr(2)) : std::nullopt;
        if (sss && *sss == 997) v.snow_depth_m = -0.01;
        else if (sss && *sss == 998) v.snow_depth_m = -0.02;
        else if (sss && *sss < 997) v.snow_depth_m = *sss / 100.0;
        break;
      }
      case Kind::Rain24: {
        const auto r = g.size() == 5 ? figures(g.substr(1)) : std::nullopt;
        if (r) v.rain24 = *r == 9999 ? -0.1 : *r / 10.0;
        break;
      }
      case Kind::Layer:
        // 89/hshs is the vertical visibility of an obscured sky, not a layer.
        if (g.substr(0, 3) == "89/") break;
        v.layers.push_back({figure_at(g, 1), figure_at(g, 2), height_of_hshs(g.substr(3))});
        break;
      default: break;  // evaporation, sunshine and radiation are not carried
    }
  }
}

}  // namespace

std::optional<double> visibility_of_vv(std::string_view vv) {
  const auto n = figures(vv);
  if (!n) return std::nullopt;
  if (vv.size() > 2) return *n;
  if (*n <= 50) return *n * 100.0;
  if (*n >= 56 && *n <= 80) return (*n - 50) * 1000.0;
  if (*n >= 81 && *n <= 89) return 35000.0 + (*n - 81) * 5000.0;
  return std::nullopt;
}

std::optional<double> height_of_hshs(std::string_view hshs) {
  const auto n = figures(hshs);
  if (!n) return std::nullopt;
  if (hshs.size() == 4) return *n;
  if (hshs.size() != 2) return std::nullopt;
  if (*n <= 50) return *n * 30.0;
  if (*n >= 56 && *n <= 80) return (*n - 50) * 300.0;
  if (*n >= 81 && *n <= 89) return 9000.0 + (*n - 80) * 1500.0;
  return std::nullopt;
}

SynopValues decode_synop(std::string_view text) {
  while (!text.empty() && (text.back() == '=' || text.back() == ' ')) text.remove_suffix(1);
  std::vector<std::string_view> first, third;
  SynopValues v;
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t end = std::min(text.find(' ', pos), text.size());
    const std::string_view g = text.substr(pos, end - pos);
    pos = end + 1;
    if (g.empty()) continue;
    if (g == "333") {
      v.section3 = true;
      continue;
    }
    (v.section3 ? third : first).push_back(g);
  }
  decode_first(first, v);
  decode_third(third, v);
  return v;
}

}  // namespace obsdesk
