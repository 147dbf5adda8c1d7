// Reading a box as a number inside a coder: numbers pass, anything else stops
// the run with the runtime's words.
#include "coders/coder_common.h"

#include <gtest/gtest.h>

namespace obsdesk {
namespace {

TEST(CoderNumber, ReadsNumbersAndRefusesTheRest) {
  const std::pair<const char*, double> good[] = {
      {"25.4", 25.4}, {" -0.5 ", -0.5}, {"1012.5", 1012.5}, {"0", 0}, {".5", 0.5}, {"7.", 7},
  };
  for (const auto& [text, value] : good) EXPECT_DOUBLE_EQ(coder_number(text), value) << text;
  for (const char* bad : {"", "   ", "-", ".", "TR", "/", "12a", "1,5"})
    EXPECT_THROW(coder_number(bad), CoderError) << '"' << bad << '"';
  try {
    coder_number("");
  } catch (const CoderError& e) {
    EXPECT_EQ(std::string(e.what()), kTypeMismatch);
  }
}

TEST(CoderNumber, TenthsHaveNoPaddingAndNoBinaryTail) {
  EXPECT_EQ(tenths_text(25.4), "254");
  EXPECT_EQ(tenths_text(-0.5), "-5");
  EXPECT_EQ(tenths_text(4.1), "41");
  EXPECT_EQ(tenths_text(0), "0");
  EXPECT_EQ(tenths_text(1012.5), "10125");
}

}  // namespace
}  // namespace obsdesk
