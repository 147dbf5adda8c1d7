#include "coders/synop_groups.h"

#include <array>

#include "coders/coder_common.h"
#include "screens/record.h"
#include "core/textnum.h"

namespace obsdesk {

namespace {

// Ten times a value, read back so that a binary tail (25.4 * 10) never shows.
double tenfold(double v) { return val(num(v * 10)); }

bool is_main_hour(std::string_view hour) {
  return hour == "00" || hour == "06" || hour == "12" || hour == "18";
}

// The figure at the end of a cloud type item, "X" shown as "/".
std::string type_figure(std::string_view item) {
  std::string f = char_at(item, 8);
  return f == "X" ? "/" : f;
}

}  // namespace

std::string cloud_figure_n(std::string_view n) {
  if (n == "TR" || n == "tr" || n == "T" || n == "t") return "1";
  return std::string(n);
}

// Nddff
WindGroups wind_groups(std::string_view n, std::string_view dd, std::string_view ff) {
  WindGroups out;
  std::string d;
  if (dd == "VRB ") {
    d = "99";
  } else {
    const double deg = (dd == "000 " || dd == "CALM") ? 0 : coder_number(dd);
    d = num(deg / 10);
    if (len(d) == 1) d = "0" + d;
  }
  std::string f = num(coder_number(ff));
  if (len(f) == 1) f = "0" + f;
  if (len(f) == 3) {
    // A speed of 100 or more does not fit ff: it goes out as "//" with "OO//"
    // in OOFFF, the mark the centre reads for a speed too high to code here.
    f = "//";
    out.oofff = "OO//";
  }
  out.nddff = cloud_figure_n(n) + d + f;
  return out;
}

// VV
std::string visibility_code(double vh) {
  if (vh < 100) return "00";
  if (vh < 1000) return pad_left(num(round_to(vh / 100)), 2);
  if (vh <= 5000) return num(fix(vh / 100));
  if (vh <= 30000) return num(fix(vh / 1000) + 50);
  static constexpr std::array<double, 8> kTable = {35000, 40000, 45000, 50000, 55000, 60000, 65000, 70000};
  for (std::size_t i = 0; i < kTable.size(); ++i)
    if (vh == kTable[i]) return num(81 + static_cast<double>(i));
  if (vh > 70000) return "89";
  return num(vh);  // a number above 30000 with no code of its own stays as it is
}

// h
std::optional<std::string> cloud_base_figure(double height) {
  struct Band {
    double below;
    const char* h;
  };
  static constexpr Band kBands[] = {{50, "0"},   {100, "1"},  {200, "2"},  {300, "3"},  {600, "4"},
                                    {1000, "5"}, {1500, "6"}, {2000, "7"}, {2500, "8"}};
  if (height == 0) return "";
  if (height < 0) return std::nullopt;
  for (const Band& b : kBands)
    if (height < b.below) return std::string(b.h);
  return "9";
}

// 1SnTTT (and every group of signed tenths)
std::optional<std::string> signed_tenths_group(std::string_view lead, std::string_view value) {
  const double x = tenfold(coder_number(value));
  const std::string l(lead);
  if (x == 0) return l + "0000";
  const std::string sign = x < 0 ? "1" : "0";
  const double a = x < 0 ? -x : x;
  const std::string t = num(a);
  if (a < 10) return l + sign + "00" + t;
  if (a < 100) return l + sign + "0" + t;
  if (a < 1000) return l + sign + t;
  return std::nullopt;
}

// 3P0P0P0, 4PPPP
std::string pressure_group(std::string_view lead, std::string_view hpa) {
  const double x = tenfold(coder_number(hpa));
  const std::string t = num(x);
  return std::string(lead) + (x < 10000 ? t : mid(t, 2));
}

// 5appp
std::string tendency_group(std::string_view characteristic, std::string_view amount) {
  return "5" + std::string(characteristic) + pad_left(num(tenfold(coder_number(amount))), 3);
}

std::string rain_period_figure(std::string_view hour, std::string_view station_kind) {
  if (hour != "06") return "1";
  if (station_kind == kStation24) return "1";
  if (station_kind == kStation18) return "2";
  if (station_kind == kStation12) return "3";
  if (station_kind == kStation6) return "4";
  return "";
}

double round_rain_text(std::string_view text) {
  double v = coder_number(text);
  const std::string t = trim(text);
  const auto point = t.find('.');
  if (point == std::string::npos) return v;
  const std::string whole = t.substr(0, point);
  if (whole == "0") return v;
  const std::string before = whole.empty() ? "" : whole.substr(whole.size() - 1);
  const std::string after = t.substr(point + 1, 1);
  if (after == "5" && (before == "2" || before == "4" || before == "6" || before == "8")) v += 0.1;
  return round_to(v);
}

// 6RRRtR
std::optional<std::string> rain_group(std::string_view rain, std::string_view hour, std::string_view station_kind) {
  const std::string tr = rain_period_figure(hour, station_kind);
  if (rain == "TR") return "6990" + tr;
  if (rain == "/") return is_main_hour(hour) ? std::optional<std::string>("6///" + tr) : std::nullopt;
  const double r = coder_number(rain);
  std::optional<std::string> group;
  if (r > 988) group = "6989" + tr;
  if (r == 0) return is_main_hour(hour) ? std::optional<std::string>("6000" + tr) : std::nullopt;
  if (r >= 0.1 && r < 1) group = "6" + num(tenfold(r) + 990) + tr;
  // The bands are tried one after the other on the value as rounded so far.
  double cur = r;
  if (cur > 0.9 && cur < 10) {
    cur = round_rain_text(rain);
    group = "600" + num(cur) + tr;
  }
  if (cur > 9.4 && cur < 100) {
    cur = round_rain_text(num(cur));
    group = "60" + num(cur) + tr;
  }
  if (cur > 99.4 && cur < 989) {
    cur = round_rain_text(num(cur));
    group = "6" + num(cur) + tr;
  }
  return group;
}

// 8NhCLCMCH
std::string cloud_group(std::string_view tp, std::string_view low_type, std::string_view middle_type,
                        std::string_view high_type, std::string_view valuem) {
  const std::string cm = middle_type == "0" ? "0" : type_figure(middle_type);
  const std::string ch = high_type == "0" ? "0" : type_figure(high_type);
  if (valuem != "TR" && valuem != "0" && tp == "0") return "8" + std::string(valuem) + "0" + cm + ch;
  // Under a trace the low figure is the mapped one; otherwise the raw figure.
  if (tp == "TR" || tp == "tr") return "81" + type_figure(low_type) + cm + ch;
  return "8" + std::string(tp) + char_at(low_type, 8) + cm + ch;
}

std::string humidity_box(std::string_view rh) { return pad_left(num(round_to(coder_number(rh))), 3); }


}  // namespace obsdesk
