#include "core/textnum.h"

#include <gtest/gtest.h>

#include <cmath>

namespace obsdesk {
namespace {

TEST(Val, ReadsTheLeadingNumberAsTheOldRuntimeDid) {
  const struct {
    const char* text;
    double value;
  } cases[] = {
      {"", 0},       {"1 2 3", 123}, {"12abc", 12}, {"-.5", -0.5},  {"+7", 7},         {"1.2.3", 1.2},
      {"\t5\n", 5},  {"1e3", 1000},  {"1e+", 1},    {"1d2", 100},   {"2.5E-1", 0.25},  {"&H1F", 31},
      {"&O17", 15},  {"TR", 0},      {"-.", 0},     {"0050", 50},   {"- 5", -5},       {"1e400", 0},
      {"٥", 0},      {"9999999999", 9999999999.0},
  };
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(val(c.text), c.value) << '"' << c.text << '"';
}

TEST(IsNumeric, WholeTextMustBeANumber) {
  for (const char* yes : {"1", " 1 ", "-1.5", ".5", "1e3", "+2"}) EXPECT_TRUE(is_numeric(yes)) << yes;
  for (const char* no : {"", " ", "1a", "TR", "-", ".", "1e", "1.2.3", "/"}) EXPECT_FALSE(is_numeric(no)) << no;
}

TEST(Num, WritesNoPaddingAndNoTrailingZeros) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {0, "0"},          {-0.0, "0"},     {-2.5, "-2.5"},  {4.1 * 100, "410"}, {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"}, {0.0001, "0.0001"}, {1e-5, "1E-05"}, {1e16, "1E+16"},
      {123456789012345678.0, "1.23456789012346E+17"}, {NAN, "0"},
  };
  for (const auto& c : cases) EXPECT_EQ(num(c.value), c.text) << c.value;
}

TEST(RoundTo, HalfToEvenOnTheExactBinaryValue) {
  const struct {
    double value;
    int decimals;
    double rounded;
  } cases[] = {
      {2.5, 0, 2},      {3.5, 0, 4},     {-2.5, 0, -2},     {0.5, 0, 0},     {0.125, 2, 0.12},
      {4.55, 1, 4.5},   {4.45, 1, 4.5},  {1.005, 2, 1},     {-0.04, 1, 0},   {12.25, 1, 12.2},
      {1234.5, -1, 1230}, {99.95, 1, 100},
  };
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(round_to(c.value, c.decimals), c.rounded) << c.value << " to " << c.decimals;
  EXPECT_EQ(round_text(-0.4, 0), "0");  // never "-0"
  EXPECT_EQ(round_text(2.0, 2), "2");
}

TEST(IntegerParts, IntFloorsAndFixTruncates) {
  EXPECT_EQ(vb_int(-2.5), -3);
  EXPECT_EQ(fix(-2.5), -2);
  EXPECT_EQ(vb_int(2.5), 2);
  EXPECT_EQ(fix(2.5), 2);
}

// Counting by characters is pinned by the archives' fixed-width fields; these
// are the edges nothing else reaches.
TEST(Characters, EdgesOfTheCharacterFunctions) {
  EXPECT_EQ(mid("ابپت", 2, 2), "بپ");
  EXPECT_EQ(mid("abc", 4), "");
  EXPECT_EQ(mid("abc", 0, 1), "a");  // a start of 0 is the first character
  EXPECT_EQ(char_at("ا1", 3), "");
  // A stray byte that is no UTF-8 counts as one character and is kept.
  EXPECT_EQ(len("a\xff" "b"), 3u);
  EXPECT_EQ(mid("a\xff" "b", 2, 1), "\xff");
  EXPECT_EQ(trim("\ta "), "\ta");  // only blanks
  EXPECT_EQ(pad_right("abcdef", 4), "abcdef");  // never cut
  EXPECT_EQ(pad_left("12345", 4), "12345");
  EXPECT_EQ(pad_left("7", 4), "0007");
  EXPECT_EQ(upper("nE-ss"), "NE-SS");
}

TEST(CodePage, PersianWindowsCodes) {
  EXPECT_EQ(ansi_code("\u0652"), 250);  // the character the number rules accept
  EXPECT_EQ(ansi_char(250), "\u0652");
  EXPECT_EQ(ansi_code("پ"), 129);
  EXPECT_EQ(ansi_code("😀"), -1);
  EXPECT_EQ(ansi_code(""), -1);
  const std::string text = "ديدبان كشيك 12:00 ZCZC";
  EXPECT_EQ(from_cp1256(to_cp1256(text)), text);
  EXPECT_EQ(to_cp1256("a😀b"), "a?b");
  EXPECT_EQ(to_cp1256("ی").size(), 1u);
}

}  // namespace
}  // namespace obsdesk
