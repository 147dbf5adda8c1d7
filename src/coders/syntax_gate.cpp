#include "coders/syntax_gate.h"

#include <regex>
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

// The METAR groups, by the shapes the coder writes: AUTO, wind in knots with a gust,
// the variable sector, visibility with its direction or CAVOK, runway visual
// range, present and recent weather from the boards, the sky words, vertical
// visibility, cloud layers, temperature and dew point, QNH in hPa and inches,
// wind shear and the layer count of the noctilucent cloud list.
const std::regex& metar_shapes() {
  static const std::string weather =
      "(\\+|-|VC)?(MI|BC|PR|DR|BL|SH|TS|FZ)?(DZ|RA|SN|SG|PL|PE|GR|GS|IC|UP|BR|FG|FU|VA|DU|SA|HZ|PO|SQ|FC|SS|DS){0,3}";
  static const std::regex shapes(
      "AUTO|((\\d{3}|VRB)\\d{2,3}(G\\d{2,3})?KT)"
      "|(\\d{3}V\\d{3})"
      "|(\\d{4}(N|NE|E|SE|S|SW|W|NW|NDV)?)|CAVOK"
      "|(R\\d{2}[LCR]?/[PM]?\\d{4}(V[PM]?\\d{4})?[UDN]?)"
      "|(" + weather + ")|(RE" + weather + ")"
      "|SKC|NSC|NCD|(VV(\\d{3}|///))"
      "|((FEW|SCT|BKN|OVC)\\d{3}(CB|TCU)?)"
      "|(M?\\d{2}/(M?\\d{2})?)|(/(M?\\d{2}))"
      "|(Q\\d{4})|(A\\d{4})"
      "|WS|ALL|RWY|(R\\d{2}[LCR]?)"
      "|([2-8]LC)");
  return shapes;
}

bool metar_group(const std::string& g) {
  // The weather pattern matches an empty text; an empty piece is a doubled blank.
  if (g.empty() || g == "+" || g == "-" || g == "VC" || g == "RE") return false;
  return std::regex_match(g, metar_shapes());
}

bool speci_time(const std::string& g) {
  static const std::regex shape("(0[1-9]|[12]\\d|3[01])([01]\\d|2[0-3])[0-5]\\dZ");
  return std::regex_match(g, shape);
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
