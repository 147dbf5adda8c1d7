// Text and numbers: every value of an observation is text. A number is read from
// the leading numeric part of a text when it is needed and goes back to text with
// no padding. Strings are UTF-8; the character helpers count characters, so a
// Persian letter is one character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace obsdesk {

// The leading numeric part of a text, as the old runtime read it: blanks, tabs
// and line ends are skipped wherever they stand, then an optional sign, digits,
// one point, digits and an optional exponent ("E" or "D"). "&H" and "&O" read hex
// and octal. Anything else ends the number; an empty or non-numeric text reads 0.
double val(std::string_view text);

// True when the text, trimmed of blanks, is a whole number as the runtime would
// accept for arithmetic (sign, digits, one point, exponent), not just a prefix.
bool is_numeric(std::string_view text);

// Number to text: no padding, no trailing zeros, at most 15 significant digits
// (4.1 * 100 is "410", 0.1 + 0.2 is "0.3"); -0 is "0"; very large or very small
// magnitudes take the exponent form "1E+16", "1E-05".
std::string num(double x);

// Rounding to n decimals, half to even on the exact binary value of the double,
// as printf's %.*f rounds: 2.5 -> 2, 0.125 -> 0.12, 4.55 -> 4.5 (the double
// nearest 4.55 lies below the half). Negative n rounds to tens, hundreds.
double round_to(double x, int decimals = 0);

// num(round_to(x, n)): the published text of a rounded value.
std::string round_text(double x, int decimals = 0);

// Integer parts: vb_int floors (Int(-2.5) is -3), fix truncates (Fix(-2.5) is -2).
double vb_int(double x);
double fix(double x);

// The whole part of the leading number of a text, truncated toward zero and held
// within +-999,999,999, so that a long run of typed figures never overflows the
// arithmetic of hours, days and years done on it.
int int_val(std::string_view text);

// Character helpers on UTF-8 text. Positions are 1-based as in the old runtime.
std::size_t len(std::string_view s);
std::string mid(std::string_view s, std::size_t start, std::size_t count = std::string::npos);
std::string left(std::string_view s, std::size_t count);
std::string right(std::string_view s, std::size_t count);
// The one character at a 1-based position, or "" past the end.
std::string char_at(std::string_view s, std::size_t pos);

// Blanks only, as Trim of the old runtime: tabs and line ends stay.
std::string trim(std::string_view s);
std::string ltrim(std::string_view s);
std::string rtrim(std::string_view s);

// Blanks added behind a text up to a width of characters; a longer text is
// returned as it is.
std::string pad_right(std::string_view s, std::size_t width);
// A fill character put in front up to a width ("7" to "0007").
std::string pad_left(std::string_view s, std::size_t width, char fill = '0');

// Upper case of the ASCII letters; other characters stay as they are.
std::string upper(std::string_view s);
std::string lower(std::string_view s);

// The single-byte code of a character in the Persian Windows code page
// (Windows-1256), as the old runtime's Asc gave it; -1 for a character outside
// it. ansi_char is the reverse: code 250 is U+0652.
int ansi_code(std::string_view one_char);
std::string ansi_char(int code);

// UTF-8 <-> Windows-1256 for the files on disk. Characters outside the code page
// become "?".
std::string to_cp1256(std::string_view utf8);
std::string from_cp1256(std::string_view bytes);

// A digit "0" to "9" (ASCII).
bool is_digit(std::string_view one_char);

}  // namespace obsdesk
