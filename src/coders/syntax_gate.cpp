#include "coders/syntax_gate.h"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace obsdesk {

namespace {

// The text cut at single blanks. An empty piece stands for a doubled, leading or
// trailing blank and fails every shape.
std::vector<std::string> pieces(std::string_view text) {
  std::vector<std::string> out;
  std::size_t start = 0;
  while (true) {
    const std::size_t blank = text.find(' ', start);
    out.emplace_back(text.substr(start, blank == std::string_view::npos ? std::string_view::npos : blank - start));
    if (blank == std::string_view::npos) break;
    start = blank + 1;
  }
  return out;
}

// Splits off the closing "=": the body before it, or a fault when the text does
// not end with exactly one "=" that closes its last group.
std::optional<GateFault> closing_sign(std::string_view text, std::string_view& body) {
  const std::size_t sign = text.find('=');
  if (sign == std::string_view::npos) return GateFault{"="};
  if (sign + 1 != text.size()) return GateFault{std::string(text.substr(sign))};
  body = text.substr(0, sign);
  if (body.empty() || body.back() == ' ') return GateFault{"="};
  return std::nullopt;
}

bool synop_group(const std::string& g) {
  if (g.size() != 5) return false;
  for (char c : g)
    if ((c < '0' || c > '9') && c != '/') return false;
  return true;
}

// A reader of one group from its start: each call takes what it names when it
// stands next and answers whether it did; a failed call takes nothing.
class Shape {
 public:
  explicit Shape(std::string_view g) : g_(g) {}
  bool done() const { return at_ == g_.size(); }
  bool word(std::string_view w) {
    if (g_.substr(at_).substr(0, w.size()) != w) return false;
    at_ += w.size();
    return true;
  }
  // The first of the words that stands next.
  bool any(std::initializer_list<std::string_view> words) {
    for (std::string_view w : words)
      if (word(w)) return true;
    return false;
  }
  bool digits(std::size_t n) {
    if (g_.size() - at_ < n) return false;
    for (std::size_t i = 0; i < n; ++i)
      if (g_[at_ + i] < '0' || g_[at_ + i] > '9') return false;
    at_ += n;
    return true;
  }
  // Two figures, or three when a third follows.
  bool speed() {
    if (!digits(2)) return false;
    digits(1);
    return true;
  }
  bool figure_in(char low, char high) {
    if (done() || g_[at_] < low || g_[at_] > high) return false;
    ++at_;
    return true;
  }

 private:
  std::string_view g_;
  std::size_t at_ = 0;
};

// Present or recent weather as the boards write it: an intensity or proximity,
// a descriptor, then up to three phenomena. The three lists share no code, so
// reading each at most once decides the group.
void weather(Shape& s) {
  s.any({"+", "-", "VC"});
  s.any({"MI", "BC", "PR", "DR", "BL", "SH", "TS", "FZ"});
  for (int i = 0; i < 3; ++i)
    if (!s.any({"DZ", "RA", "SN", "SG", "PL", "PE", "GR", "GS", "IC", "UP", "BR", "FG", "FU", "VA", "DU", "SA", "HZ",
                "PO", "SQ", "FC", "SS", "DS"}))
      break;
}

// Each shape reads the whole group or fails.
using ShapeTest = bool (*)(Shape&);

// The METAR groups, by the shapes the coder writes: AUTO, wind in knots with a gust,
// the variable sector, visibility with its direction or CAVOK, runway visual
// range, present and recent weather from the boards, the sky words, vertical
// visibility, cloud layers, temperature and dew point, QNH in hPa and inches,
// wind shear and the layer count of the noctilucent cloud list.
constexpr ShapeTest kMetarShapes[] = {
    [](Shape& s) { return s.any({"AUTO", "CAVOK", "SKC", "NSC", "NCD", "WS", "ALL", "RWY"}) && s.done(); },
    [](Shape& s) {  // wind
      if (!s.word("VRB") && !s.digits(3)) return false;
      if (!s.speed()) return false;
      if (s.word("G") && !s.speed()) return false;
      return s.word("KT") && s.done();
    },
    [](Shape& s) { return s.digits(3) && s.word("V") && s.digits(3) && s.done(); },  // variable sector
    [](Shape& s) {  // visibility, with the direction of the least
      if (!s.digits(4)) return false;
      s.any({"NDV", "NE", "NW", "N", "SE", "SW", "S", "E", "W"});
      return s.done();
    },
    [](Shape& s) {  // runway visual range
      if (!s.word("R") || !s.digits(2)) return false;
      s.any({"L", "C", "R"});
      if (!s.word("/")) return false;
      s.any({"P", "M"});
      if (!s.digits(4)) return false;
      if (s.word("V")) {
        s.any({"P", "M"});
        if (!s.digits(4)) return false;
      }
      s.any({"U", "D", "N"});
      return s.done();
    },
    [](Shape& s) {  // present or recent weather
      s.word("RE");
      weather(s);
      return s.done();
    },
    [](Shape& s) { return s.word("VV") && (s.digits(3) || s.word("///")) && s.done(); },
    [](Shape& s) {  // cloud layer
      if (!s.any({"FEW", "SCT", "BKN", "OVC"}) || !s.digits(3)) return false;
      s.any({"CB", "TCU"});
      return s.done();
    },
    [](Shape& s) {  // temperature and dew point; the dew point may be missing, or the temperature
      if (s.word("/")) {
        s.word("M");
        return s.digits(2) && s.done();
      }
      s.word("M");
      if (!s.digits(2) || !s.word("/")) return false;
      if (s.done()) return true;
      s.word("M");
      return s.digits(2) && s.done();
    },
    [](Shape& s) { return s.any({"Q", "A"}) && s.digits(4) && s.done(); },
    [](Shape& s) {  // the runway of a wind shear
      if (!s.word("R") || !s.digits(2)) return false;
      s.any({"L", "C", "R"});
      return s.done();
    },
    [](Shape& s) { return s.figure_in('2', '8') && s.word("LC") && s.done(); },
};

bool metar_group(const std::string& g) {
  // The weather shape reads an empty text; an empty piece is a doubled blank.
  if (g.empty() || g == "+" || g == "-" || g == "VC" || g == "RE") return false;
  for (ShapeTest test : kMetarShapes) {
    Shape s(g);
    if (test(s)) return true;
  }
  return false;
}

// DDHHMMZ: a day of the month, an hour of the day and a minute.
bool speci_time(const std::string& g) {
  Shape s(g);
  const bool day = (s.word("0") && s.figure_in('1', '9')) || (s.figure_in('1', '2') && s.digits(1)) ||
                   (s.word("3") && s.figure_in('0', '1'));
  if (!day) return false;
  const bool hour = (s.figure_in('0', '1') && s.digits(1)) || (s.word("2") && s.figure_in('0', '3'));
  return hour && s.figure_in('0', '5') && s.digits(1) && s.word("Z") && s.done();
}

}  // namespace

std::optional<GateFault> synop_fault(std::string_view text) {
  std::string_view body;
  if (auto f = closing_sign(text, body)) return f;
  const std::vector<std::string> groups = pieces(body);
  bool section3 = false;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const std::string& g = groups[i];
    if (g == "333" && i >= 2 && !section3) {
      section3 = true;
      continue;
    }
    if (!synop_group(g)) return GateFault{g};
    if (i == 0 && (g[0] > '4' || g[0] == '/' || g[1] < '1' || g[1] > '7')) return GateFault{g};
  }
  // A report is at least iRiXhVV and Nddff.
  if (groups.size() < 2) return GateFault{std::string(text)};
  return std::nullopt;
}

std::optional<GateFault> metar_fault(std::string_view text, bool speci) {
  std::string_view body;
  if (auto f = closing_sign(text, body)) return f;
  std::vector<std::string> groups;
  if (speci) {
    groups = pieces(body);
    if (!speci_time(groups.front())) return GateFault{groups.front()};
    groups.erase(groups.begin());
  } else {
    // Every group of the METAR body is written with a blank in front.
    if (body.front() != ' ') return GateFault{std::string(pieces(body).front())};
    groups = pieces(body.substr(1));
  }
  if (groups.empty()) return GateFault{std::string(text)};
  for (const std::string& g : groups)
    if (!metar_group(g)) return GateFault{g};
  return std::nullopt;
}

std::string gate_message(const GateFault& fault) {
  return "گروه \"" + fault.group + "\" در گزارش نادرست است";
}

}  // namespace obsdesk
