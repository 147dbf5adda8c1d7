#include "symbols/figure.h"

#include <charconv>
#include <cmath>
#include <numbers>

namespace obsdesk {

void append_number(std::string& out, double v) {
  double r = std::round(v * 100) / 100;
  if (r == 0) r = 0;  // no "-0"
  char buf[32];
  auto res = std::to_chars(buf, buf + sizeof buf, r, std::chars_format::fixed, 2);
  std::string_view s(buf, static_cast<std::size_t>(res.ptr - buf));
  while (s.back() == '0') s.remove_suffix(1);
  if (s.back() == '.') s.remove_suffix(1);
  out += s;
}

namespace {

// A small writer of SVG elements; all strokes take the group's pen.
struct Pen {
  std::string& out;

  void num(double v) { append_number(out, v); }
  void pt(double x, double y) {
    num(x);
    out += ',';
    num(y);
  }
  void line(double x1, double y1, double x2, double y2) {
    out += "<path d=\"M";
    pt(x1, y1);
    out += " L";
    pt(x2, y2);
    out += "\"/>";
  }
  // A polyline or polygon through the points; closed and filled on request.
  void poly(std::initializer_list<std::pair<double, double>> pts, bool closed, bool filled) {
    out += "<path d=\"";
    char op = 'M';
    for (auto [x, y] : pts) {
      out += op;
      pt(x, y);
      out += ' ';
      op = 'L';
    }
    if (closed) out += 'Z';
    else out.pop_back();
    out += filled ? "\" fill=\"#000\"/>" : "\"/>";
  }
  void disc(double x, double y, double r) {
    out += "<circle cx=\"";
    num(x);
    out += "\" cy=\"";
    num(y);
    out += "\" r=\"";
    num(r);
    out += "\" fill=\"#000\" stroke=\"none\"/>";
  }
  void ring(double x, double y, double r) {
    out += "<circle cx=\"";
    num(x);
    out += "\" cy=\"";
    num(y);
    out += "\" r=\"";
    num(r);
    out += "\"/>";
  }
  // Raw path data, written with the helpers above by the caller.
  void path_begin() { out += "<path d=\""; }
  void path_end(bool filled = false) { out += filled ? "\" fill=\"#000\"/>" : "\"/>"; }
};

void arrow_head(Pen& p, double x, double y, double dx, double dy, double size) {
  // Two barbs back from the point (x,y) against the direction (dx,dy).
  const double len = std::hypot(dx, dy);
  const double ux = dx / len, uy = dy / len;
  const double bx = x - ux * size, by = y - uy * size;
  p.poly({{bx - uy * size * 0.6, by + ux * size * 0.6}, {x, y}, {bx + uy * size * 0.6, by - ux * size * 0.6}}, false,
         false);
}

// The octa fill of a station circle: quarter sectors, with the odd octas drawn
// as a bar across the last sector, as on the plotting chart.
void octas(Pen& p, double x, double y, double r, int n) {
  p.ring(x, y, r);
  auto sector = [&](double from_deg, double to_deg) {
    const double a0 = (from_deg - 90) * std::numbers::pi / 180, a1 = (to_deg - 90) * std::numbers::pi / 180;
    p.path_begin();
    p.out += 'M';
    p.pt(x, y);
    p.out += " L";
    p.pt(x + r * std::cos(a0), y + r * std::sin(a0));
    p.out += " A";
    p.num(r);
    p.out += ',';
    p.num(r);
    p.out += to_deg - from_deg > 180 ? " 0 1 1 " : " 0 0 1 ";
    p.pt(x + r * std::cos(a1), y + r * std::sin(a1));
    p.out += " Z";
    p.out += "\" fill=\"#000\" stroke=\"none\"/>";
  };
  switch (n) {
    case 1: p.line(x, y - r, x, y + r); break;
    case 2: sector(0, 90); break;
    case 3: sector(0, 90); p.line(x, y, x, y + r); break;
    case 4: sector(0, 180); break;
    case 5: sector(0, 180); p.line(x, y, x - r, y); break;
    case 6: sector(0, 270); break;
    case 7:
      // Overcast with openings: the disc with a white bar down its middle.
      p.disc(x, y, r);
      p.out += "<path d=\"M";
      p.pt(x, y - r + 1);
      p.out += " L";
      p.pt(x, y + r - 1);
      p.out += "\" stroke=\"#fff\"/>";
      break;
    case 8: p.disc(x, y, r); break;
    case 9: {
      const double d = r * 0.7071;
      p.line(x - d, y - d, x + d, y + d);
      p.line(x - d, y + d, x + d, y - d);
      break;
    }
    default: break;
  }
}

// Barograph traces of the tendency characteristic, in units of a 20 by 16 box.
void tendency(Pen& p, const Primitive& m) {
  static const std::vector<std::pair<double, double>> traces[9] = {
      {{-10, 6}, {0, -6}, {10, 2}},      // 0 up, then down; same or higher
      {{-10, 6}, {0, -6}, {10, -6}},     // 1 up, then steady
      {{-10, 6}, {10, -6}},              // 2 up
      {{-10, 4}, {0, 4}, {10, -8}},      // 3 steady, then up
      {{-10, 0}, {10, 0}},               // 4 steady
      {{-10, -6}, {0, 6}, {10, -2}},     // 5 down, then up; same or lower
      {{-10, -6}, {0, 6}, {10, 6}},      // 6 down, then steady
      {{-10, -6}, {10, 6}},              // 7 down
      {{-10, -4}, {0, -4}, {10, 8}},     // 8 steady, then down
  };
  if (m.arg < 0 || m.arg > 8) return;
  p.path_begin();
  char op = 'M';
  for (auto [tx, ty] : traces[m.arg]) {
    p.out += op;
    p.pt(m.x + tx * m.w, m.y + ty * m.w);
    p.out += ' ';
    op = 'L';
  }
  p.out.pop_back();
  p.path_end();
}

void draw(Pen& p, const Primitive& m) {
  const double x = m.x, y = m.y, s = m.w;
  switch (m.shape) {
    case Shape::Dot: p.disc(x, y, 3.6 * s); break;
    case Shape::Comma:
      p.disc(x, y, 3.4 * s);
      p.path_begin();
      p.out += 'M';
      p.pt(x + 3.2 * s, y);
      p.out += " Q";
      p.pt(x + 3.6 * s, y + 6 * s);
      p.out += ' ';
      p.pt(x - 2.5 * s, y + 9 * s);
      p.path_end();
      break;
    case Shape::Asterisk:
      for (double deg : {90.0, 30.0, 150.0}) {
        const double a = deg * std::numbers::pi / 180, r = 5 * s;
        p.line(x - r * std::cos(a), y - r * std::sin(a), x + r * std::cos(a), y + r * std::sin(a));
      }
      break;
    case Shape::Triangle:
      p.poly({{x - 5.5 * s, y + 4.5 * s}, {x, y - 5.5 * s}, {x + 5.5 * s, y + 4.5 * s}}, true, m.arg == 1);
      break;
    case Shape::InvTriangle:
      p.poly({{x - 7 * s, y - 5.5 * s}, {x, y + 7.5 * s}, {x + 7 * s, y - 5.5 * s}}, true, m.arg == 2);
      if (m.arg == 1) p.line(x - 3.6 * s, y + 0.8 * s, x + 3.6 * s, y + 0.8 * s);
      break;
    case Shape::Line: p.line(x, y, x + m.w, y + m.h); break;
    case Shape::Thunder:
      // The frame "R" of the thunderstorm, then the arrow from its top right.
      p.poly({{x - 7 * s, y + 12 * s}, {x - 7 * s, y - 11 * s}, {x + 6 * s, y - 11 * s}}, false, false);
      if (m.arg == 1) p.line(x - 7 * s, y - 6 * s, x + 3 * s, y - 6 * s);
      p.poly({{x + 6 * s, y - 11 * s}, {x + 1 * s, y + 1 * s}, {x + 7 * s, y + 1 * s}, {x + 3 * s, y + 12 * s}}, false,
             false);
      arrow_head(p, x + 3 * s, y + 12 * s, -4, 11, 4.5 * s);
      break;
    case Shape::Lightning:
      p.poly({{x + 4 * s, y - 12 * s}, {x - 3 * s, y + 1 * s}, {x + 4 * s, y + 1 * s}, {x - 1 * s, y + 12 * s}}, false,
             false);
      arrow_head(p, x - 1 * s, y + 12 * s, -5, 11, 4.5 * s);
      break;
    case Shape::Bracket:
      p.poly({{x - 4, y - m.h}, {x, y - m.h}, {x, y + m.h}, {x - 4, y + m.h}}, false, false);
      break;
    case Shape::Paren: {
      const double d = m.arg < 0 ? -1 : 1;
      p.path_begin();
      p.out += 'M';
      p.pt(x - d * 2, y - m.h);
      p.out += " Q";
      p.pt(x + d * 5, y);
      p.out += ' ';
      p.pt(x - d * 2, y + m.h);
      p.path_end();
      break;
    }
    case Shape::SandS:
      p.path_begin();
      p.out += 'M';
      p.pt(x + 5 * s, y - 6.5 * s);
      p.out += " C";
      p.pt(x + 4 * s, y - 11 * s);
      p.out += ' ';
      p.pt(x - 6 * s, y - 11 * s);
      p.out += ' ';
      p.pt(x - 5 * s, y - 5 * s);
      p.out += " C";
      p.pt(x - 4 * s, y);
      p.out += ' ';
      p.pt(x + 5 * s, y - 0.5 * s);
      p.out += ' ';
      p.pt(x + 5 * s, y + 5 * s);
      p.out += " C";
      p.pt(x + 6 * s, y + 11 * s);
      p.out += ' ';
      p.pt(x - 4 * s, y + 11 * s);
      p.out += ' ';
      p.pt(x - 5 * s, y + 6.5 * s);
      p.path_end();
      break;
    case Shape::Arrow: {
      const double x2 = x + m.w, dir = m.w < 0 ? -1 : 1;
      if (m.arg & 2) {
        p.line(x, y - 2, x2 - dir * 2, y - 2);
        p.line(x, y + 2, x2 - dir * 2, y + 2);
      } else {
        p.line(x, y, x2, y);
      }
      arrow_head(p, x2, y, dir, 0, 5);
      if (m.arg & 1) arrow_head(p, x, y, -dir, 0, 5);
      break;
    }
    case Shape::Drift:
      p.path_begin();
      p.out += 'M';
      p.pt(x - 12 * s, y + 7 * s);
      p.out += " Q";
      p.pt(x - 10 * s, y);
      p.out += ' ';
      p.pt(x - 4 * s, y);
      p.out += " L";
      p.pt(x + 12 * s, y);
      p.path_end();
      if (m.arg == 1) p.line(x - 4 * s, y - 4 * s, x + 10 * s, y - 4 * s);
      arrow_head(p, x + 12 * s, y, 1, 0, 5 * s);
      break;
    case Shape::Funnel:
      p.path_begin();
      p.out += 'M';
      p.pt(x - 8 * s, y - 11 * s);
      p.out += " Q";
      p.pt(x + 1 * s, y);
      p.out += ' ';
      p.pt(x - 8 * s, y + 11 * s);
      p.out += " M";
      p.pt(x + 8 * s, y - 11 * s);
      p.out += " Q";
      p.pt(x - 1 * s, y);
      p.out += ' ';
      p.pt(x + 8 * s, y + 11 * s);
      p.path_end();
      break;
    case Shape::Infinity:
      p.path_begin();
      p.out += 'M';
      p.pt(x, y);
      p.out += " C";
      p.pt(x + 4 * s, y - 7 * s);
      p.out += ' ';
      p.pt(x + 12 * s, y - 7 * s);
      p.out += ' ';
      p.pt(x + 12 * s, y);
      p.out += " C";
      p.pt(x + 12 * s, y + 7 * s);
      p.out += ' ';
      p.pt(x + 4 * s, y + 7 * s);
      p.out += ' ';
      p.pt(x, y);
      p.out += " C";
      p.pt(x - 4 * s, y - 7 * s);
      p.out += ' ';
      p.pt(x - 12 * s, y - 7 * s);
      p.out += ' ';
      p.pt(x - 12 * s, y);
      p.out += " C";
      p.pt(x - 12 * s, y + 7 * s);
      p.out += ' ';
      p.pt(x - 4 * s, y + 7 * s);
      p.out += ' ';
      p.pt(x, y);
      p.path_end();
      break;
    case Shape::Smoke:
      p.line(x - 6 * s, y + 12 * s, x - 6 * s, y - 6 * s);
      p.path_begin();
      p.out += 'M';
      p.pt(x - 6 * s, y - 6 * s);
      p.out += " Q";
      p.pt(x - 2 * s, y - 13 * s);
      p.out += ' ';
      p.pt(x + 2 * s, y - 6 * s);
      p.out += " T";
      p.pt(x + 10 * s, y - 6 * s);
      p.path_end();
      break;
    case Shape::Wave: {
      const int n = m.arg < 1 ? 1 : m.arg;
      const double step = static_cast<double>(m.w) / n, amp = 3.5;
      p.path_begin();
      p.out += 'M';
      p.pt(x - m.w / 2, y);
      for (int i = 0; i < n; ++i) {
        const double x0 = x - m.w / 2 + i * step;
        p.out += " Q";
        p.pt(x0 + step / 4, y - amp * 2);
        p.out += ' ';
        p.pt(x0 + step / 2, y);
        p.out += " T";
        p.pt(x0 + step, y);
      }
      p.path_end();
      break;
    }
    case Shape::Circle:
      if (m.arg < 0) p.ring(x, y, m.w);
      else octas(p, x, y, m.w, m.arg);
      break;
    case Shape::Dome:
    case Shape::Cup: {
      const double sweep = m.shape == Shape::Dome ? 1 : 0;
      p.path_begin();
      p.out += 'M';
      p.pt(x - m.w, y);
      p.out += " A";
      p.pt(m.w, m.h);
      p.out += sweep != 0 ? " 0 0 1 " : " 0 0 0 ";
      p.pt(x + m.w, y);
      if (m.arg == 1) {
        p.out += " Z";
      }
      p.path_end();
      break;
    }
    case Shape::Hook: {
      const double d = m.arg == 1 ? 1 : -1;
      p.path_begin();
      p.out += 'M';
      p.pt(x, y);
      p.out += " L";
      p.pt(x + m.w - 5, y);
      p.out += " Q";
      p.pt(x + m.w + 2, y);
      p.out += ' ';
      p.pt(x + m.w + 1, y + d * 9);
      p.path_end();
      break;
    }
    case Shape::Tendency: tendency(p, m); break;
    case Shape::Letter:
      p.out += "<text x=\"";
      p.num(x);
      p.out += "\" y=\"";
      p.num(y + 7 * s);
      p.out += "\" font-size=\"";
      p.num(20 * s);
      p.out += "\" text-anchor=\"middle\" font-family=\"sans-serif\" fill=\"#000\" stroke=\"none\">";
      p.out += m.text;
      p.out += "</text>";
      break;
  }
}

}  // namespace

void append_figure_svg(std::string& out, const Figure& figure) {
  Pen p{out};
  for (const Primitive& m : figure) draw(p, m);
}

std::string figure_svg(const Figure& figure) {
  std::string out;
  out.reserve(256 + figure.size() * 96);
  out +=
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"-32 -32 64 64\" width=\"64\" height=\"64\">"
      "<g fill=\"none\" stroke=\"#000\" stroke-width=\"3\" stroke-linecap=\"round\" stroke-linejoin=\"round\">";
  append_figure_svg(out, figure);
  out += "</g></svg>";
  return out;
}

}  // namespace obsdesk
