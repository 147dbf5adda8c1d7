// Arithmetic of the pressure and humidity routines that stops where the old
// runtime stopped: the logarithm of zero or less, a power of a negative base, a
// division by zero and a result too large for a double raise a StepFault with the
// runtime's own description. The routines catch it per step: the step's result
// keeps its earlier value, the description is shown, and the next step runs.
#pragma once

#include <cmath>
#include <stdexcept>
#include <string>

namespace obsdesk::fault_math {

inline constexpr const char* kInvalidCall = "Invalid procedure call or argument";
inline constexpr const char* kDivisionByZero = "Division by zero";
inline constexpr const char* kOverflow = "Overflow";

struct StepFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline double finite(double x) {
  if (std::isnan(x)) throw StepFault(kInvalidCall);
  if (std::isinf(x)) throw StepFault(kOverflow);
  return x;
}

inline double div(double a, double b) {
  if (b == 0) throw StepFault(kDivisionByZero);
  return finite(a / b);
}

// Natural logarithm.
inline double ln(double x) {
  if (!(x > 0)) throw StepFault(kInvalidCall);
  return std::log(x);
}

inline double pow(double base, double exponent) {
  if (base < 0 && exponent != std::trunc(exponent)) throw StepFault(kInvalidCall);
  if (base == 0 && exponent < 0) throw StepFault(kDivisionByZero);
  return finite(std::pow(base, exponent));
}

inline double exp(double x) { return finite(std::exp(x)); }

}  // namespace obsdesk::fault_math
