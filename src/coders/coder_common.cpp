#include "coders/coder_common.h"

#include <cmath>

#include "core/textnum.h"

namespace obsdesk {

double coder_number(std::string_view text) {
  if (!is_numeric(text)) throw CoderError(std::string(kTypeMismatch));
  const double x = val(text);
  if (!std::isfinite(x)) throw CoderError("Overflow");
  return x;
}

std::string tenths_text(double value) { return num(value * 10); }

std::pair<std::string, std::string> split_report(std::string_view text, std::size_t limit) {
  std::pair<std::string, std::string> lines{std::string(text), ""};
  const std::size_t n = len(text);
  if (n <= limit) return lines;
  for (std::size_t p = 1; p <= n && p <= limit; ++p) {
    if (char_at(text, p) != " ") continue;
    lines = {left(text, p - 1), mid(text, p + 1)};
  }
  return lines;
}

}  // namespace obsdesk
