#include "symbols/synop_reader.h"

#include <cctype>

namespace obsdesk {

namespace {

std::vector<std::string_view> groups_of(std::string_view text) {
  std::vector<std::string_view> out;
  std::size_t i = 0;
  while (i < text.size()) {
    while (i < text.size() && std::isspace(static_cast<unsigned char>(text[i]))) ++i;
    std::size_t j = i;
    while (j < text.size() && !std::isspace(static_cast<unsigned char>(text[j]))) ++j;
    std::string_view g = text.substr(i, j - i);
    while (!g.empty() && g.back() == '=') g.remove_suffix(1);
    if (!g.empty()) out.push_back(g);
    i = j;
  }
  return out;
}

enum class Field { Value, Missing, Bad };

// Reads a run of figures: all digits is a value, all "/" is not observed,
// anything else is malformed.
Field figures(std::string_view s, int& value) {
  bool digits = true, slashes = true;
  value = 0;
  for (char c : s) {
    if (c >= '0' && c <= '9') {
      slashes = false;
      value = value * 10 + (c - '0');
    } else if (c == '/') {
      digits = false;
    } else {
      return Field::Bad;
    }
  }
  if (digits) return Field::Value;
  return slashes ? Field::Missing : Field::Bad;
}

struct Reader {
  SynopReading r;
  std::string_view group;

  void odd(std::string_view why) { r.odd.push_back("group " + std::string(group) + ": " + std::string(why)); }

  // One field of the current group into an optional value; false when the
  // field is malformed (reported once per group by the caller).
  bool take(std::size_t pos, std::size_t n, std::optional<int>& out) {
    int v = 0;
    switch (figures(group.substr(pos, n), v)) {
      case Field::Value: out = v; return true;
      case Field::Missing: out.reset(); return true;
      case Field::Bad: out.reset(); return false;
    }
    return false;
  }

  // snTTT in tenths: sign figure 0 above zero, 1 below.
  void temperature(std::optional<double>& out, const char* what) {
    std::optional<int> sn, ttt;
    if (!take(1, 1, sn) || !take(2, 3, ttt) || (sn && *sn > 1)) {
      odd(std::string("not a ") + what);
      return;
    }
    if (sn && ttt) out = (*sn == 1 ? -*ttt : *ttt) / 10.0;
  }

  // PPPP in tenths of hPa without the thousands.
  void pressure(std::optional<double>& out) {
    std::optional<int> p;
    if (!take(1, 4, p)) return odd("not a pressure");
    if (p) out = (*p < 5000 ? *p + 10000 : *p) / 10.0;
  }

  void precipitation() {
    if (!take(1, 3, r.RRR) || !take(4, 1, r.tR)) odd("not a precipitation group");
  }
};

}  // namespace

SynopReading read_synop(std::string_view text) {
  Reader rd;
  SynopReading& r = rd.r;
  const auto groups = groups_of(text);
  std::size_t i = 0;
  if (i < groups.size() && groups[i] == "AAXX") {
    if (i + 1 < groups.size() && groups[i + 1].size() == 5) {
      const char iw = groups[i + 1][4];
      r.wind_in_knots = iw == '3' || iw == '4';
    }
    i += 3;
  }

  // Section 1: iRiXhVV and Nddff open it, then the numbered groups in order.
  int last = 0;
  for (int k = 0; i < groups.size(); ++i, ++k) {
    rd.group = groups[i];
    const std::string_view g = groups[i];
    if (g == "333" || g == "555" || g == "222" || g == "444") break;
    if (g.size() != 5) {
      rd.odd("not five figures");
      continue;
    }
    if (k == 0) {
      if (!rd.take(0, 1, r.iR) || !rd.take(1, 1, r.iX) || !rd.take(2, 1, r.h) || !rd.take(3, 2, r.VV))
        rd.odd("not iRiXhVV");
      continue;
    }
    if (k == 1) {
      if (!rd.take(0, 1, r.N) || !rd.take(1, 2, r.dd) || !rd.take(3, 2, r.ff)) rd.odd("not Nddff");
      if (r.dd) *r.dd *= 10;
      continue;
    }
    const int indicator = g[0] - '0';
    if (k == 2 && g.starts_with("00") && r.ff == 99) {
      if (!rd.take(2, 3, r.ff)) rd.odd("not a wind speed");
      continue;
    }
    if (indicator < 1 || indicator > 9 || indicator <= last) {
      rd.odd("out of place in section 1");
      continue;
    }
    last = indicator;
    switch (indicator) {
      case 1: rd.temperature(r.TT, "temperature"); break;
      case 2:
        // 29UUU gives the humidity instead of the dew point.
        if (g[1] != '9') rd.temperature(r.TdTd, "dew point");
        break;
      case 3: rd.pressure(r.P0); break;
      case 4: rd.pressure(r.P); break;
      case 5: {
        std::optional<int> ppp;
        if (!rd.take(1, 1, r.a) || !rd.take(2, 3, ppp) || (r.a && *r.a > 8)) {
          r.a.reset();
          rd.odd("not a tendency");
        } else if (ppp) {
          r.ppp = *ppp / 10.0;
        }
        break;
      }
      case 6: rd.precipitation(); break;
      case 7:
        if (!rd.take(1, 2, r.ww) || !rd.take(3, 1, r.W1) || !rd.take(4, 1, r.W2)) rd.odd("not 7wwW1W2");
        break;
      case 8:
        if (!rd.take(1, 1, r.Nh) || !rd.take(2, 1, r.CL) || !rd.take(3, 1, r.CM) || !rd.take(4, 1, r.CH))
          rd.odd("not 8NhCLCMCH");
        break;
      default: break;  // 9GGgg
    }
  }

  // Section 3: only the precipitation, when section 1 did not carry it.
  if (i < groups.size() && groups[i] == "333") {
    for (++i; i < groups.size() && groups[i] != "555"; ++i) {
      rd.group = groups[i];
      if (groups[i].size() == 5 && groups[i][0] == '6' && !r.RRR) rd.precipitation();
    }
  }
  return r;
}

}  // namespace obsdesk
