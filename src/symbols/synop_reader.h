// A reader of the SYNOP groups this station codes, turning a coded text back
// into values: what the centre will read from the report. It reads section 1
// (iRiXhVV Nddff 00fff 1snTTT 2snTdTdTd 3PPPP 4PPPP 5appp 6RRRtR 7wwW1W2
// 8NhCLCMCH 9GGgg), with or without the section 0 heading "AAXX YYGGiw IIiii",
// and takes 6RRRtR from section 3 when section 1 has none.
//
// A figure "/" is "not observed" and leaves its value empty. A group that is
// neither a value nor "/" (a letter, a wrong length, a group out of order) is
// malformed: it is named in `odd` with the reason, and its values stay empty.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

struct SynopReading {
  bool wind_in_knots = false;  // iw 3 or 4 in section 0; this station codes m/s
  std::optional<int> iR, iX, h, VV;
  std::optional<int> N, dd, ff;             // octas, degrees, speed in the report's unit
  std::optional<double> TT, TdTd;           // degrees Celsius
  std::optional<double> P0, P;              // station pressure and QFF, hPa
  std::optional<int> a;                     // tendency characteristic
  std::optional<double> ppp;                // tendency amount, hPa, unsigned
  std::optional<int> RRR, tR;               // precipitation code figures
  std::optional<int> ww, W1, W2;
  std::optional<int> Nh, CL, CM, CH;
  std::vector<std::string> odd;             // "group 1x254: not a temperature"
};

SynopReading read_synop(std::string_view text);

}  // namespace obsdesk
