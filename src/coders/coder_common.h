// Helpers every coder shares: reading a box as a number the way the coders need
// it. A group is never built from a text that is not a number: an empty or
// malformed text stops the run with the runtime's own words on the message
// panel, and the code panel stays as far as the run came.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace obsdesk {

// A failed conversion inside a coder. The Workstation's handler trap shows its
// text on FrmERR and ends the handler, which is how a run stops.
class CoderError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The runtime's description of a text that cannot be read as a number.
inline constexpr std::string_view kTypeMismatch = "Type mismatch";

// The number a text holds. Blanks around it are allowed; an empty text, a lone
// sign or point, or trailing letters throw CoderError("Type mismatch").
double coder_number(std::string_view text);

// Ten times a value as the coders write it: no padding, no trailing zeros,
// 15 significant digits ("25.4" gives "254", "-0.5" gives "-5").
std::string tenths_text(double value);

// A report text cut for the bulletin: the first line ends at the last blank
// within `limit` characters, which is dropped; the rest is the second line.
std::pair<std::string, std::string> split_report(std::string_view text, std::size_t limit);

}  // namespace obsdesk
