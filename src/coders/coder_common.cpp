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

}  // namespace obsdesk
