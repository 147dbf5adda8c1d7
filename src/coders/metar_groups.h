// The groups of the METAR and SPECI reports, each a small rule over texts. The
// coders of the two reports read the entry screen, call these, and drop the
// results into the METAR frame of the code panel.
#pragma once

#include "coders/coder_common.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace obsdesk {

// The number of a field that a group is built from. Junk, an empty text or a
// value too large for a group is a CoderError that names the field, so that the
// observer sees which box to correct.
double coder_number(std::string_view text, std::string_view field);

// ---- Time ---------------------------------------------------------------------

// The hour of the observation as hhmm: "5" gives "0500", "12" gives "1200".
std::string metar_utc(std::string_view hour);

// DDHHmmZ of a METAR: the tenth minute before the hour, on the day of the report;
// at 00 UTC the day before, but the first of a month is not rolled back
// ("010000Z"). Day 7 at 12 gives "071150Z", day 15 at 00 gives "142350Z".
std::string metar_time_group(std::string_view day, std::string_view hour);

// DDhhmmZ of a METAR(30'): the day on two figures and the time typed in txt1.
std::string metar30_time_group(std::string_view day, std::string_view hhmm);

// hhmm of a SPECI: txt1 padded with zeros in front to four figures ("7" gives "0007").
std::string speci_hhmm(std::string_view txt1);

// DDhhmmZ of a SPECI: the day on two figures, then hhmm ("051234Z").
std::string speci_time_group(std::string_view day, std::string_view hhmm);

// ---- Wind and visibility -----------------------------------------------------------

// True for the spellings of a calm direction.
bool is_calm(std::string_view dd);

// dddffGfmfmKT: speed and gust from m/s to knots.
std::string wind_group(std::string_view dd, std::string_view ff, std::string_view gust);

// dndndnVdxdxdx: "" when the first limit is empty.
std::string variable_sector(std::string_view dn, std::string_view dx);

// VVVVDv for a visibility in metres and its direction. Without the top row (the
// second visibility) a value above 9999 gives no group.
std::string visibility_group(double v, std::string_view direction, bool with_top_row = true);

// VVhshshs: vertical visibility from metres; "" when the text is empty.
std::string metar_vertical_visibility(std::string_view vv);

// ---- Temperature and pressure --------------------------------------------------------

// T'T' of a temperature: whole degrees, halves away from the even figure as the
// report wants them, "M" for a value below zero ("-0.4" gives "M00").
std::string module_nim(std::string_view t);

// T'T'/T'dT'd: each part only when its field is not empty.
std::string temperature_group(std::string_view tdry, std::string_view tdew);

// QPHPHPH: "Q" and the QNH in whole hPa on four figures; "" when QNH is empty.
std::string qnh_group(std::string_view qnh);

// APHPHPHPH: "A" and the QNH in hundredths of an inch; "" when QIN is empty.
std::string altimeter_group(std::string_view qin);

// ---- Cloud -----------------------------------------------------------------------------

// NsNsNs from oktas: "FEW", "SCT", "BKN", "OVC"; "" above 8.
std::string cover(double oktas);

// hshshs of a height in metres: hundreds of feet on three figures.
std::string cloud_height(std::string_view metres);

// The height of the lowest cloud: the lowest non-zero of the low layers and the
// middle and high layer (unless "X"), or the middle or high layer when the first
// layer is 0; otherwise the text it held.
std::string lowest_cloud(std::string_view higl1, std::string_view higl2, std::string_view higl3,
                         std::string_view higm, std::string_view high, std::string_view held);

// What the cloud groups are built from.
struct CloudLayers {
  double a1 = 0, a2 = 0, a3 = 0;  // low amounts, a trace counted as 1
  double aM = 0, aH = 0;          // middle and high amounts, a trace counted as 0
  bool conv1 = false, conv2 = false, conv3 = false;  // low layer is TCU or CB
  bool middle_trace = false;      // VALUEM is a trace
  std::string L1, L2, L3, M, H;   // the group of each layer
};

// The convective suffix of a low cloud type: "TCU", "CB" or "".
std::string convective_suffix(std::string_view type);

// The five cloud boxes, by the eight cases of the layer arrangement.
std::array<std::string, 5> cloud_groups(const CloudLayers& c);

// Two convective layers at one height become one CB group: the first pair (low
// layers 1 and 2) and then the second (2 and 3) when they qualify. Gives the
// number of merged pairs that add up to more than 8 oktas.
struct Merge {
  bool first = false, second = false;  // L1 with L2, L2 with L3
  double a1 = 0, a2 = 0, a3 = 0;
  std::string h1, h2;                   // hshshs of the first and second layer
};
int merge_convective(std::array<std::string, 5>& boxes, const Merge& m);

// ---- Report ------------------------------------------------------------------------------

// Every group that is not empty, each with one blank in front.
std::string join_groups(const std::vector<std::string>& groups);


}  // namespace obsdesk
