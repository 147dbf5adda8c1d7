#include "coders/metar_groups.h"

#include <cmath>
#include <cstdlib>

#include "core/textnum.h"

namespace obsdesk {

namespace {

// The largest whole number a group is built from, as the old runtime's long.
constexpr double kLongMax = 2147483647.0;

std::string two_figures(double day) { return pad_left(num(day), 2); }

// A trimmed text that says "not observed": the group shows slashes for it.
bool not_observed(std::string_view t) { return t == "-" || t == "/" || t == "//"; }

}  // namespace

double coder_number(std::string_view text, std::string_view field) {
  const std::string t = trim(text);
  if (!is_numeric(t))
    throw CoderError(std::string(kTypeMismatch) + ": " + std::string(field) + " = \"" + std::string(text) + "\"");
  // The reader takes a number too large for a double as 0: the overflow is told here.
  std::string c = t;
  for (char& ch : c)
    if (ch == 'd' || ch == 'D') ch = 'e';
  const double x = std::strtod(c.c_str(), nullptr);
  if (!std::isfinite(x) || std::fabs(x) > kLongMax)
    throw CoderError("Overflow: " + std::string(field) + " = \"" + std::string(text) + "\"");
  return x;
}

// ---- Time ---------------------------------------------------------------------

// hhmm: the hour on two figures and "00"
std::string metar_utc(std::string_view hour) {
  const std::string h = trim(hour);
  return (len(h) == 1 ? "0" + h : h) + "00";
}

// YYGG50Z: the tenth minute before the hour
std::string metar_time_group(std::string_view day, std::string_view hour) {
  double d = coder_number(day, "Day");
  const double h = coder_number(hour, "UTC");
  if (h != std::trunc(h) || h < 0 || h > 23)
    throw CoderError("The hour of the report is not 00 to 23: UTC = \"" + std::string(hour) + "\"");
  if (h == 0) {
    d -= 1;
    // The first of a month is not rolled back to the month before.
    if (d == 0) return "010000Z";
    return two_figures(d) + "2350Z";
  }
  if (h == 10) return two_figures(d) + "0950Z";
  if (h >= 11) return two_figures(d) + num(h - 1) + "50Z";
  return two_figures(d) + "0" + num(h - 1) + "50Z";
}

// YYhhmmZ of a half-hour report
std::string metar30_time_group(std::string_view day, std::string_view hhmm) {
  return two_figures(coder_number(day, "Day")) + trim(hhmm) + "Z";
}

// hhmm on four figures
std::string speci_hhmm(std::string_view txt1) {
  const std::string t = trim(txt1);
  if (t.empty()) return t;
  return pad_left(t, 4);
}

// DDhhmmZ: the day on two figures, as the time group and the heading need it
std::string speci_time_group(std::string_view day, std::string_view hhmm) {
  return two_figures(coder_number(day, "Day")) + std::string(hhmm) + "Z";
}

// ---- Wind and visibility -----------------------------------------------------------

bool is_calm(std::string_view dd) {
  static const char* const kCalm[] = {"calm", "CALM", "CAL", "cal", "CA", "C", "ca", "c", "0", "000"};
  const std::string t = trim(dd);
  for (const char* c : kCalm)
    if (t == c) return true;
  return false;
}

// dddffKT, dddffGfmfmKT, 00000KT; knots = m/s x 1.946, halves to even
std::string wind_group(std::string_view dd, std::string_view ff, std::string_view gust) {
  if (is_calm(dd)) return "00000KT";
  std::string d = trim(dd);
  if (len(d) == 2) d = "0" + d;
  std::string f = round_text(coder_number(ff, "FF") * 1.946);
  if (len(f) == 1) f = "0" + f;
  if (trim(gust).empty()) return d + f + "KT";
  return d + f + "G" + round_text(coder_number(gust, "GUSTY") * 1.946) + "KT";
}

// dndndnVdxdxdx
std::string variable_sector(std::string_view dn, std::string_view dx) {
  auto three = [](std::string_view x) {
    std::string t = trim(x);
    return len(t) == 3 ? t : "0" + t;
  };
  if (trim(dn).empty()) return "";
  return three(dn) + "V" + three(dx);
}

// VVVVDv: 50 m steps below 800 m, 100 m steps to 5000 m, 1000 m steps above
std::string visibility_group(double v, std::string_view direction, bool with_top_row) {
  const std::string dir(direction);
  if (v > 9999) return with_top_row ? "9999" : "";
  if (v < 50) return "0000" + dir;
  if (v < 100) return "0050" + dir;
  const double whole = std::trunc(v);
  const std::string t = num(whole);
  if (v < 800) return "0" + t.substr(0, 1) + (std::fmod(whole, 100) < 50 ? "00" : "50") + dir;
  if (v < 5000) return (t.size() == 3 ? "0" + t.substr(0, 1) : t.substr(0, 2)) + "00" + dir;
  return t.substr(0, 1) + "000" + dir;
}

// VVhshshs: 30 m steps to 1500 m, 300 m steps above, "VV///" when not seen
std::string metar_vertical_visibility(std::string_view vv) {
  const std::string t = trim(vv);
  if (t.empty()) return "";
  if (t == "/" || t == "//") return "VV///";
  const double x = coder_number(t, "VV");
  if (x < 300) return "VV00" + num(std::trunc(x / 30));
  if (x <= 1500) return "VV0" + num(std::trunc(x / 30));
  if (x < 1800) return "VV050";
  if (x <= 9000) return "VV0" + num(std::trunc(x / 300) + 50);
  return "";
}

// ---- Temperature and pressure --------------------------------------------------------

namespace {

// The figure next to the point when the point is the given (1-based) character.
struct AroundPoint {
  bool at = false;
  char before = 0, after = 0;
};
AroundPoint around_point(const std::string& t, std::size_t pos) {
  if (t.size() <= pos || t[pos - 1] != '.') return {};
  return {true, t[pos - 2], t[pos]};
}

// One band of the rounding: when the point stands where the band expects it and
// the figures say so, 0.1 is added first, which turns an exact half away from the
// even figure; then halves to even.
double band(double x, std::size_t point_pos, char lone_before, std::string_view turn_up) {
  const AroundPoint p = around_point(num(x), point_pos);
  if (p.at && ((p.after == '5' && p.before == lone_before) || turn_up.find(p.before) != std::string_view::npos))
    x += 0.1;
  return round_to(x);
}

}  // namespace

// T'T': whole degrees, halves upward, "M" below zero
std::string module_nim(std::string_view t) {
  double x = coder_number(t, "temperature");
  if (x == 0) return "00";
  if (x < 0) {
    if (x <= -0.1 && x > -1) {
      if (x == -0.5) x += 0.1;
      x = round_to(x);
    }
    if (x < -0.9 && x > -10) x = band(x, 3, '1', "3579");
    if (x < -9 && x > -100) x = band(x, 4, '1', "3579");
    const std::string s = num(std::fabs(x));
    if (len(s) == 1) return "M0" + s;
    if (len(s) == 2) return "M" + s;
    return s;
  }
  if (x >= 0.1 && x < 1) {
    if (x == 0.5) x += 0.1;
    x = round_to(x);
  }
  if (x > 0.9 && x < 10) x = band(x, 2, '0', "2468");
  if (x > 9 && x < 100) x = band(x, 3, '0', "2468");
  const std::string s = num(x);
  return len(s) == 1 ? "0" + s : s;
}

// T'T'/T'dT'd
std::string temperature_group(std::string_view tdry, std::string_view tdew) {
  const std::string t = trim(tdry), d = trim(tdew);
  if (t.empty() && d.empty()) return "";
  auto part = [](const std::string& x) { return x.empty() ? "" : not_observed(x) ? "//" : module_nim(x); };
  return part(t) + "/" + part(d);
}

// QPHPHPH
std::string qnh_group(std::string_view qnh) {
  if (trim(qnh).empty()) return "";
  const double q = coder_number(qnh, "QNH");
  const std::string whole = num(std::trunc(q));
  return q > 999.9 ? "Q" + whole : "Q0" + whole;
}

// APHPHPHPH
std::string altimeter_group(std::string_view qin) {
  if (trim(qin).empty()) return "";
  return "A" + num(coder_number(qin, "QIN") * 100);
}

// ---- Cloud -----------------------------------------------------------------------------

// NsNsNs
std::string cover(double oktas) {
  if (oktas < 3) return "FEW";
  if (oktas <= 4) return "SCT";
  if (oktas >= 5 && oktas <= 7) return "BKN";
  if (oktas == 8) return "OVC";
  return "";
}

// hshshs = metres x 10/3, in hundreds of feet
std::string cloud_height(std::string_view metres) {
  const double feet = coder_number(metres, "cloud height") * (3 + 1.0 / 3);
  // Integer division as the old runtime did it: both sides rounded to whole numbers first.
  return pad_left(num(std::trunc(round_to(feet) / 100)), 3);
}

std::string lowest_cloud(std::string_view higl1, std::string_view higl2, std::string_view higl3,
                         std::string_view higm, std::string_view high, std::string_view held) {
  if (val(higl1) != 0) {
    std::string lowest = trim(higl1);
    for (std::string_view h : {higl2, higl3, higm, high})
      if (val(h) != 0 && val(h) < val(lowest)) lowest = trim(h);
    return lowest;
  }
  if (val(higm) != 0) return trim(higm);
  if (val(high) != 0) return trim(high);
  return std::string(held);
}

std::string convective_suffix(std::string_view type) {
  if (type == "CU     2") return "TCU";
  if (type == "CB     3" || type == "CB     9") return "CB";
  return "";
}

// NsNsNshshshs(CC): the five cloud boxes. The cases run one after the other, each
// writing only the boxes it names, so a later case overwrites an earlier one.
std::array<std::string, 5> cloud_groups(const CloudLayers& c) {
  std::array<std::string, 5> box;
  auto put = [&](int b, const std::string& g) { box[static_cast<std::size_t>(b - 1)] = g; };
  // Middle then high layer from box b, by the amounts above p and q.
  auto tail = [&](int b, double p, double q) {
    if (c.aM > p) {
      put(b, c.M);
      if (c.aH > q) put(b + 1, c.H);
    } else if (c.aH > p) {
      put(b, c.H);
    }
  };
  // A middle or high layer of more than 4 oktas in box b.
  auto end = [&](int b) {
    if (c.aM > 4)
      put(b, c.M);
    else if (c.aH > 4)
      put(b, c.H);
  };

  // No first low layer.
  if (c.a1 == 0 && !c.conv2 && !c.conv3) {
    if (c.aM == 0 || c.middle_trace) {
      put(1, c.H);
    } else {
      put(1, c.M);
      if (c.aH > 2) put(2, c.H);
    }
  }
  // A first low layer that is not convective.
  if (c.a1 > 0 && !c.conv1) {
    put(1, c.L1);
    if (c.a2 > 2 && !c.conv2) {
      put(2, c.L2);
      if (c.a3 > 4 && !c.conv3)
        put(3, c.L3);
      else
        end(3);
    } else if (c.a3 > 2) {
      put(2, c.L3);
      end(3);
    } else {
      tail(2, 2, 4);
    }
  }
  // A convective first layer.
  if (c.conv1) {
    put(1, c.L1);
    if (c.a2 > 0) {
      if (!c.conv2) {
        put(2, c.L2);
        if (c.a3 > 2) {
          if (!c.conv3) {
            put(3, c.L3);
            end(4);
          }
        } else {
          tail(3, 2, 4);
        }
      }
    } else {
      tail(2, 0, 2);
    }
  }
  // A convective second layer over a plain first one.
  if (c.a1 > 0 && !c.conv1 && c.conv2) {
    if (c.a3 > 2 && !c.conv3) {
      put(1, c.L1);
      put(2, c.L2);
      put(3, c.L3);
      if (c.aM > 4) put(4, c.M);
    }
    if (!(c.a3 > 2) && !c.conv3) {
      put(1, c.L1);
      put(2, c.L2);
      tail(3, 2, 4);
    }
  }
  // A convective third layer over two plain ones.
  if (c.a1 > 0 && !c.conv1 && !c.conv2 && c.conv3) {
    if (c.a2 > 2) {
      put(1, c.L1);
      put(2, c.L2);
      put(3, c.L3);
      end(4);
    } else {
      put(2, c.L3);
      tail(3, 2, 4);
    }
  }
  // The first two convective, the third not.
  if (c.conv1 && c.conv2 && !c.conv3) {
    put(1, c.L1);
    put(2, c.L2);
    if (c.a3 == 0) {
      tail(3, 0, 2);
    } else {
      put(3, c.L3);
      tail(4, 2, 4);
    }
  }
  // The first and third convective around a plain second.
  if (c.conv1 && c.conv3 && c.a2 > 0 && !c.conv2) {
    put(1, c.L1);
    put(2, c.L2);
    put(3, c.L3);
    if (c.aM > 2) {
      put(4, c.M);
      if (c.aH > 4) put(5, c.H);
    } else if (c.aH > 2) {
      put(4, c.H);
    }
  }
  // The second and third convective over a plain first.
  if (c.a1 > 0 && !c.conv1 && c.conv2 && c.conv3) {
    put(1, c.L1);
    put(2, c.L2);
    put(3, c.L3);
    tail(4, 2, 4);
  }
  return box;
}

// NsNsNshshshsCB of two convective layers at one height
int merge_convective(std::array<std::string, 5>& boxes, const Merge& m) {
  int over = 0;
  auto merge = [&](std::size_t at, double sum, const std::string& h) {
    if (sum > 8) ++over;
    boxes[at] = cover(sum) + h + "CB";
    for (std::size_t i = at + 1; i + 1 < boxes.size(); ++i) boxes[i] = boxes[i + 1];
    boxes.back().clear();
  };
  if (m.first) merge(0, m.a1 + m.a2, m.h1);
  if (m.second) merge(1, m.a2 + m.a3, m.h2);
  return over;
}

// ---- Report ------------------------------------------------------------------------------

std::string join_groups(const std::vector<std::string>& groups) {
  std::string out;
  for (const std::string& g : groups)
    if (!trim(g).empty()) out += " " + g;
  return out;
}


}  // namespace obsdesk
