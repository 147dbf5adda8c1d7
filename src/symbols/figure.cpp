#include "symbols/figure.h"

#include <charconv>
#include <cmath>
#include <numbers>

namespace obsdesk {

void append_point(std::string& out, double x, double y) {
  append_number(out, x);
  out += ',';
  append_number(out, y);
}

SvgPath::SvgPath(std::string& out) : out_(out) { out_ += "<path d=\""; }

SvgPath& SvgPath::to(char command, std::initializer_list<Point> points) {
  next(command);
  bool first = true;
  for (auto [x, y] : points) {
    if (!first) out_ += ' ';
    first = false;
    append_point(out_, x, y);
  }
  return *this;
}

SvgPath& SvgPath::arc(double rx, double ry, const char* flags, double x, double y) {
  next('A');
  append_point(out_, rx, ry);
  out_ += ' ';
  out_ += flags;
  out_ += ' ';
  append_point(out_, x, y);
  return *this;
}

SvgPath& SvgPath::close() {
  next('Z');
  return *this;
}

void SvgPath::end(const char* attributes) {
  out_ += '"';
  out_ += attributes;
  out_ += "/>";
}

void SvgPath::next(char command) {
  if (!empty_) out_ += ' ';
  empty_ = false;
  out_ += command;
}

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

constexpr const char* kFilled = " fill=\"#000\"";

// A small writer of SVG elements; all strokes take the group's pen.
struct Pen {
  std::string& out;

  SvgPath path() { return SvgPath(out); }
  void line(double x1, double y1, double x2, double y2) { path().to('M', {{x1, y1}}).to('L', {{x2, y2}}).end(); }
  // A polyline or polygon through the points; closed and filled on request.
  void poly(std::initializer_list<SvgPath::Point> points, bool closed, bool filled) {
    SvgPath d = path();
    char command = 'M';
    for (const SvgPath::Point& pt : points) {
      d.to(command, {pt});
      command = 'L';
    }
    if (closed) d.close();
    d.end(filled ? kFilled : "");
  }
  void circle(double x, double y, double r, const char* attributes) {
    out += "<circle cx=\"";
    append_number(out, x);
    out += "\" cy=\"";
    append_number(out, y);
    out += "\" r=\"";
    append_number(out, r);
    out += '"';
    out += attributes;
    out += "/>";
  }
  void disc(double x, double y, double r) { circle(x, y, r, " fill=\"#000\" stroke=\"none\""); }
  void ring(double x, double y, double r) { circle(x, y, r, ""); }
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
    p.path()
        .to('M', {{x, y}})
        .to('L', {{x + r * std::cos(a0), y + r * std::sin(a0)}})
        .arc(r, r, to_deg - from_deg > 180 ? "0 1 1" : "0 0 1", x + r * std::cos(a1), y + r * std::sin(a1))
        .close()
        .end(" fill=\"#000\" stroke=\"none\"");
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
      p.path().to('M', {{x, y - r + 1}}).to('L', {{x, y + r - 1}}).end(" stroke=\"#fff\"");
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
  static const std::vector<SvgPath::Point> traces[9] = {
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
  SvgPath d = p.path();
  char command = 'M';
  for (auto [tx, ty] : traces[m.arg]) {
    d.to(command, {{m.x + tx * m.w, m.y + ty * m.w}});
    command = 'L';
  }
  d.end();
}

void draw(Pen& p, const Primitive& m) {
  const double x = m.x, y = m.y, s = m.w;
  switch (m.shape) {
    case Shape::Dot: p.disc(x, y, 3.6 * s); break;
    case Shape::Comma:
      p.disc(x, y, 3.4 * s);
      p.path().to('M', {{x + 3.2 * s, y}}).to('Q', {{x + 3.6 * s, y + 6 * s}, {x - 2.5 * s, y + 9 * s}}).end();
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
      // The frame of the thunderstorm, then the arrow from its top right.
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
      p.path().to('M', {{x - d * 2, y - m.h}}).to('Q', {{x + d * 5, y}, {x - d * 2, y + m.h}}).end();
      break;
    }
    case Shape::SandS:
      p.path()
          .to('M', {{x + 5 * s, y - 6.5 * s}})
          .to('C', {{x + 4 * s, y - 11 * s}, {x - 6 * s, y - 11 * s}, {x - 5 * s, y - 5 * s}})
          .to('C', {{x - 4 * s, y}, {x + 5 * s, y - 0.5 * s}, {x + 5 * s, y + 5 * s}})
          .to('C', {{x + 6 * s, y + 11 * s}, {x - 4 * s, y + 11 * s}, {x - 5 * s, y + 6.5 * s}})
          .end();
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
      p.path()
          .to('M', {{x - 12 * s, y + 7 * s}})
          .to('Q', {{x - 10 * s, y}, {x - 4 * s, y}})
          .to('L', {{x + 12 * s, y}})
          .end();
      if (m.arg == 1) p.line(x - 4 * s, y - 4 * s, x + 10 * s, y - 4 * s);
      arrow_head(p, x + 12 * s, y, 1, 0, 5 * s);
      break;
    case Shape::Funnel:
      p.path()
          .to('M', {{x - 8 * s, y - 11 * s}})
          .to('Q', {{x + 1 * s, y}, {x - 8 * s, y + 11 * s}})
          .to('M', {{x + 8 * s, y - 11 * s}})
          .to('Q', {{x - 1 * s, y}, {x + 8 * s, y + 11 * s}})
          .end();
      break;
    case Shape::Infinity:
      p.path()
          .to('M', {{x, y}})
          .to('C', {{x + 4 * s, y - 7 * s}, {x + 12 * s, y - 7 * s}, {x + 12 * s, y}})
          .to('C', {{x + 12 * s, y + 7 * s}, {x + 4 * s, y + 7 * s}, {x, y}})
          .to('C', {{x - 4 * s, y - 7 * s}, {x - 12 * s, y - 7 * s}, {x - 12 * s, y}})
          .to('C', {{x - 12 * s, y + 7 * s}, {x - 4 * s, y + 7 * s}, {x, y}})
          .end();
      break;
    case Shape::Smoke:
      p.line(x - 6 * s, y + 12 * s, x - 6 * s, y - 6 * s);
      p.path()
          .to('M', {{x - 6 * s, y - 6 * s}})
          .to('Q', {{x - 2 * s, y - 13 * s}, {x + 2 * s, y - 6 * s}})
          .to('T', {{x + 10 * s, y - 6 * s}})
          .end();
      break;
    case Shape::Wave: {
      const int n = m.arg < 1 ? 1 : m.arg;
      const double step = static_cast<double>(m.w) / n, amp = 3.5;
      SvgPath d = p.path();
      d.to('M', {{x - m.w / 2, y}});
      for (int i = 0; i < n; ++i) {
        const double x0 = x - m.w / 2 + i * step;
        d.to('Q', {{x0 + step / 4, y - amp * 2}, {x0 + step / 2, y}}).to('T', {{x0 + step, y}});
      }
      d.end();
      break;
    }
    case Shape::Circle:
      if (m.arg < 0) p.ring(x, y, m.w);
      else octas(p, x, y, m.w, m.arg);
      break;
    case Shape::Dome:
    case Shape::Cup: {
      SvgPath d = p.path();
      d.to('M', {{x - m.w, y}}).arc(m.w, m.h, m.shape == Shape::Dome ? "0 0 1" : "0 0 0", x + m.w, y);
      if (m.arg == 1) d.close();
      d.end();
      break;
    }
    case Shape::Hook: {
      const double d = m.arg == 1 ? 1 : -1;
      p.path()
          .to('M', {{x, y}})
          .to('L', {{x + m.w - 5, y}})
          .to('Q', {{x + m.w + 2, y}, {x + m.w + 1, y + d * 9}})
          .end();
      break;
    }
    case Shape::Tendency: tendency(p, m); break;
    case Shape::Letter:
      p.out += "<text x=\"";
      append_number(p.out, x);
      p.out += "\" y=\"";
      append_number(p.out, y + 7 * s);
      p.out += "\" font-size=\"";
      append_number(p.out, 20 * s);
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
