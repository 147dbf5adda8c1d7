// The groups of sections 0 and 1 of a SYNOP, each a pure function from the texts
// of the entry boxes to the text of its group. A group that meets none of its
// branches returns std::nullopt: the box keeps what it held, which after the
// clearing step is the blank group of five blanks. A number that cannot be read
// throws CoderError.
#pragma once

#include "coders/coder_common.h"
#include "screens/record.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace obsdesk {

inline constexpr std::string_view kBlankGroup = "     ";

// The cloud figure of the total cover: a trace ("TR", "tr", "T", "t") is "1".
std::string cloud_figure_n(std::string_view n);

// Nddff and its companion 00fff: {NDDFF, OOFFF}; OOFFF is nullopt unless the
// speed has three figures, which the system marks "OO//".
struct WindGroups {
  std::string nddff;
  std::optional<std::string> oofff;
};
WindGroups wind_groups(std::string_view n, std::string_view dd, std::string_view ff);

// VV from the mean horizontal visibility in metres.
std::string visibility_code(double vh);

// h from the height of the lowest cloud: "" for a height of exactly 0 (the
// group is one figure short), nullopt outside every band.
std::optional<std::string> cloud_base_figure(double height);

// 1SnTTT, 2SnTdTdTd and the other signed-tenths groups: lead figure, sign
// figure, three figures of tenths.
std::optional<std::string> signed_tenths_group(std::string_view lead, std::string_view value);

// 3P0P0P0 and 4PPPP: lead figure and the tenths of hPa without the thousands.
std::string pressure_group(std::string_view lead, std::string_view hpa);

// 5appp from the characteristic and the amount in hPa.
std::string tendency_group(std::string_view characteristic, std::string_view amount);

// tR of 6RRRtR by hour and station kind.
std::string rain_period_figure(std::string_view hour, StationKind station_kind);

// Halves rounded upward as the rain group reads them from the text: an even
// figure before a point followed by "5" gets 0.1 first; no point, or an integer
// part "0", leaves the value as it is.
double round_rain_text(std::string_view text);

// 6RRRtR from the six-hour rain text (already "0" when it was empty).
std::optional<std::string> rain_group(std::string_view rain, std::string_view hour, StationKind station_kind);

// 8NhCLCMCH. tp is TP, low_type Combo4, middle/high the type lists, valuem VALUEM.
std::string cloud_group(std::string_view tp, std::string_view low_type, std::string_view middle_type,
                        std::string_view high_type, std::string_view valuem);

// The RH box: whole percent, three figures.
std::string humidity_box(std::string_view rh);


}  // namespace obsdesk
