#include "symbols/station_model.h"

#include <cmath>
#include <numbers>

#include "symbols/symbols.h"

namespace obsdesk {

namespace {

constexpr double kKnotsPerMs = 1.943844;  // 1 m/s = 3600 / 1852 knots

std::string two_figures(int v) { return std::string(1, char('0' + v / 10 % 10)) + char('0' + v % 10); }

// Whole degrees, halves away from zero, as temperatures are plotted.
std::string degrees(double t) {
  const long v = std::lround(t);
  return std::to_string(v == 0 ? 0L : v);
}

// RRR as plotted: millimetres; 990 is a trace, 991 to 999 tenths of a millimetre.
std::string precipitation(int rrr) {
  if (rrr == 990) return "TR";
  if (rrr > 990) return "0." + std::to_string(rrr - 990);
  return std::to_string(rrr);
}

// A symbol placed and scaled in the model; an id with no symbol (cover not
// reported) draws the bare station circle.
void symbol_at(std::string& out, std::string_view id, double x, double y, double scale) {
  const Figure* f = symbol_figure(id);
  out += "<g transform=\"translate(";
  append_number(out, x);
  out += ',';
  append_number(out, y);
  out += ") scale(";
  append_number(out, scale);
  out += ")\">";
  if (f) append_figure_svg(out, *f);
  else out += "<circle r=\"14\"/>";
  out += "</g>";
}

void escape_into(std::string& out, std::string_view s) {
  for (char c : s) {
    if (c == '<') out += "&lt;";
    else if (c == '>') out += "&gt;";
    else if (c == '&') out += "&amp;";
    else if (c == '"') out += "&quot;";
    else out += c;
  }
}

}  // namespace

StationModel station_model(const SynopReading& r) {
  StationModel m;
  m.odd = r.odd;
  auto text = [&](std::string element, std::string place, double x, double y, std::string value) {
    m.elements.push_back({std::move(element), std::move(place), x, y, std::move(value), false});
  };
  auto symbol = [&](std::string element, std::string place, double x, double y, std::string id) {
    m.elements.push_back({std::move(element), std::move(place), x, y, std::move(id), true});
  };

  symbol("N", "centre", 0, 0, r.N ? "N" + std::to_string(*r.N) : "N/");
  if (r.CH && *r.CH > 0) symbol("CH", "top", 0, -46, "CH" + std::to_string(*r.CH));
  if (r.CM && *r.CM > 0) symbol("CM", "above", 0, -26, "CM" + std::to_string(*r.CM));
  if (r.TT) text("TT", "upper left", -14, -20, degrees(*r.TT));
  if (r.P) {
    const long tenths = std::lround(*r.P * 10) % 1000;
    text("PPP", "upper right", 14, -20, std::string(1, char('0' + tenths / 100)) + two_figures(int(tenths % 100)));
  }
  if (r.VV) text("VV", "far left", -48, 4, two_figures(*r.VV));
  if (r.ww && *r.ww > 3) symbol("ww", "left", -27, 0, "ww" + two_figures(*r.ww));
  if (r.ppp) {
    const int tenths = int(std::lround(*r.ppp * 10));
    const char* sign = r.a && *r.a <= 3 ? "+" : r.a && *r.a >= 5 ? "-" : "";
    text("ppp", "right", 14, 4, sign + (tenths < 10 ? "0" + std::to_string(tenths) : std::to_string(tenths)));
  }
  if (r.a) symbol("a", "far right", 56, 0, "a" + std::to_string(*r.a));
  if (r.TdTd) text("TdTd", "lower left", -14, 24, degrees(*r.TdTd));
  if (r.CL && *r.CL > 0) symbol("CL", "below", 0, 24, "CL" + std::to_string(*r.CL));
  if (r.Nh) text("Nh", "below right", 13, 30, std::to_string(*r.Nh));
  if (r.W1 && *r.W1 > 2) symbol("W1", "lower right", 34, 22, "W" + std::to_string(*r.W1));
  if (r.W2 && *r.W2 > 2) symbol("W2", "lower right", 52, 22, "W" + std::to_string(*r.W2));
  if (r.h) text("h", "bottom", 0, 48, std::to_string(*r.h));
  if (r.RRR) text("RRR", "bottom right", 16, 46, precipitation(*r.RRR));
  if (r.tR) text("tR", "bottom right", 40, 46, std::to_string(*r.tR));

  // The wind: a shaft toward the direction it blows from, barbs by 5 knots.
  if (r.ff) {
    const double knots = r.wind_in_knots ? *r.ff : *r.ff * kKnotsPerMs;
    m.wind_knots = int(std::lround(knots / 5)) * 5;
    if (*r.ff == 0 || (r.dd && *r.dd == 0)) {
      m.calm = true;
      m.wind_knots = 0;
    } else if (r.dd && *r.dd <= 360) {
      m.wind_from = *r.dd;
    }
    if (m.calm) text("wind", "calm", 0, 0, "0");
    else if (m.wind_from >= 0) text("wind", "shaft", 0, 0, std::to_string(m.wind_from) + "/" + std::to_string(m.wind_knots));
  }
  return m;
}

StationModel station_model(std::string_view synop_text) { return station_model(read_synop(synop_text)); }

std::string station_model_svg(const StationModel& m) {
  const int lines = static_cast<int>(m.odd.size());
  const int height = 160 + 12 * lines;
  std::string out;
  out.reserve(2048);
  out += "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"-110 -80 220 ";
  out += std::to_string(height);
  out += "\" width=\"440\" height=\"";
  out += std::to_string(2 * height);
  out += "\"><g fill=\"none\" stroke=\"#000\" stroke-width=\"3\" stroke-linecap=\"round\" stroke-linejoin=\"round\">";

  // Symbols: the station circle larger, the others at half size.
  for (const PlotElement& e : m.elements) {
    if (!e.symbol) continue;
    symbol_at(out, e.text, e.x, e.y, e.element == "N" ? 8.0 / 14 : 0.55);
  }

  if (m.calm) {
    out += "<circle r=\"12\" stroke-width=\"1.5\"/>";
  } else if (m.wind_from >= 0) {
    const double th = m.wind_from * std::numbers::pi / 180;
    const double ux = std::sin(th), uy = -std::cos(th);
    // Barbs lean away from the station on the clockwise side of the shaft.
    const double phi = 70 * std::numbers::pi / 180;
    const double bx = ux * std::cos(phi) - uy * std::sin(phi), by = ux * std::sin(phi) + uy * std::cos(phi);
    auto at = [&](double d) { return SvgPath::Point{ux * d, uy * d}; };
    auto barb = [&](double d, double len) { return SvgPath::Point{ux * d + bx * len, uy * d + by * len}; };
    constexpr double kInner = 8, kTip = 44, kFull = 14, kPennantStep = 7, kBarbStep = 5;

    const int pennants = m.wind_knots / 50;
    int rest = m.wind_knots - 50 * pennants;
    double d = kTip - kPennantStep * pennants;
    if (m.wind_knots < 10) d -= kBarbStep;  // a lone half barb stands off the tip
    SvgPath shaft(out);
    shaft.to('M', {at(kInner)}).to('L', {at(kTip)});
    for (; rest >= 5; rest -= 10, d -= kBarbStep) shaft.to('M', {at(d)}).to('L', {barb(d, rest >= 10 ? kFull : kFull / 2)});
    shaft.end(" stroke-width=\"1.5\"");
    if (pennants > 0) {
      SvgPath flags(out);
      for (int k = 0; k < pennants; ++k) {
        const double dk = kTip - kPennantStep * k;
        flags.to('M', {at(dk)}).to('L', {barb(dk, kFull), at(dk - 6)}).close();
      }
      flags.end(" fill=\"#000\" stroke-width=\"1\"");
    }
  }
  out += "</g><g font-family=\"sans-serif\" font-size=\"11\" fill=\"#000\">";

  for (const PlotElement& e : m.elements) {
    if (e.symbol || e.element == "wind") continue;
    const bool left = e.x < 0;
    out += "<text x=\"";
    append_number(out, e.x);
    out += "\" y=\"";
    append_number(out, e.y + 4);
    out += left ? "\" text-anchor=\"end\">" : e.x == 0 ? "\" text-anchor=\"middle\">" : "\">";
    escape_into(out, e.text);
    out += "</text>";
  }
  int line = 0;
  for (const std::string& o : m.odd) {
    out += "<text x=\"-106\" y=\"";
    out += std::to_string(84 + 12 * line++);
    out += "\" font-size=\"9\" fill=\"#b00\">";
    escape_into(out, o);
    out += "</text>";
  }
  out += "</g></svg>";
  return out;
}

std::string station_model_svg(std::string_view synop_text) { return station_model_svg(station_model(synop_text)); }

}  // namespace obsdesk
