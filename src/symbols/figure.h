// Weather symbols as figures: a symbol is a short list of marks, each mark one
// of a small set of drawing primitives (dot, comma, asterisk, triangle, fog bar,
// thunderstorm arrow, ...) placed on a fixed square of 64 units centred on 0,0
// (y grows downward). The list is the symbol's identity: two codes whose lists
// are equal draw the same figure. A figure renders to SVG with a fixed view box
// and stroke width, so it scales to any control and prints cleanly.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace obsdesk {

enum class Shape {
  Dot,          // filled round drop of rain; w scales it
  Comma,        // drizzle drop with its tail; w scales it
  Asterisk,     // snow: three strokes crossing at 60 degrees; w scales it
  Triangle,     // point up (hail, ice); arg 0 outline, 1 filled; w scales it
  InvTriangle,  // point down (shower); arg 0 outline, 1 barred, 2 filled; w scales it
  Line,         // a stroke from x,y to x+w,y+h
  Thunder,      // thunderstorm: the frame and the lightning arrow; arg 1 the heavy form
  Lightning,    // the lightning arrow alone; w scales it
  Bracket,      // "]" of "in the past hour" at x, half height h
  Paren,        // "(" (arg -1) or ")" (arg 1) at x, half height h
  SandS,        // the S of sand and dust; w scales it
  Arrow,        // horizontal arrow from x to x+w; arg bit 1 a head at both ends, bit 2 a double shaft
  Drift,        // the drifting-snow arrow: a shaft rising from a curl; arg 1 the heavy form
  Funnel,       // funnel cloud: two curves waisted in the middle; w scales it
  Infinity,     // haze; w scales it
  Smoke,        // a stick with its plume; w scales it
  Wave,         // the freezing curve or water: arg periods of a wave w wide
  Circle,       // circle of radius w; arg -1 plain, 0 to 8 octas filled, 9 sky obscured
  Dome,         // cumulus curve: upper half ellipse w by h on x,y; arg 1 with its base
  Cup,          // altocumulus curve: lower half ellipse w by h on x,y
  Hook,         // cirrus: a stroke w long ending in a hook; arg 1 hooks down
  Tendency,     // barograph trace of the tendency characteristic arg (0 to 8); w scales it
  Letter,       // text (a sky letter) centred on x,y
};

struct Primitive {
  Shape shape;
  float x = 0, y = 0;
  float w = 1, h = 0;
  int arg = 0;
  std::string_view text = {};  // Letter only
  bool operator==(const Primitive&) const = default;
};

using Figure = std::vector<Primitive>;

// The SVG elements of a figure, without the document around them.
void append_figure_svg(std::string& out, const Figure& figure);

// A standalone SVG document of one figure: view box "-32 -32 64 64", stroke
// width 3, black on transparent.
std::string figure_svg(const Figure& figure);

// A number as SVG wants it: at most two decimals, no trailing zeros.
void append_number(std::string& out, double v);
// "x,y"
void append_point(std::string& out, double x, double y);

// The data of one <path>, written straight into out: commands joined by
// blanks, each a letter and its points ("M1,2 Q3,4 5,6"); end() closes the
// element with its own attributes.
class SvgPath {
 public:
  using Point = std::pair<double, double>;
  explicit SvgPath(std::string& out);
  SvgPath& to(char command, std::initializer_list<Point> points);
  SvgPath& arc(double rx, double ry, const char* flags, double x, double y);
  SvgPath& close();
  void end(const char* attributes = "");

 private:
  void next(char command);
  std::string& out_;
  bool empty_ = true;
};

}  // namespace obsdesk
