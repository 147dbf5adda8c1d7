#include <algorithm>
#include "core/textnum.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <unordered_map>
#include <vector>

namespace obsdesk {

namespace {

bool is_blank_for_val(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// Length in bytes of the UTF-8 character that starts at s[i]; an invalid byte
// counts as one character of its own.
std::size_t char_bytes(std::string_view s, std::size_t i) {
  const auto c = static_cast<unsigned char>(s[i]);
  std::size_t n = 1;
  if (c >= 0xF0 && c < 0xF8) n = 4;
  else if (c >= 0xE0) n = (c < 0xF0) ? 3 : 1;
  else if (c >= 0xC0) n = 2;
  if (i + n > s.size()) return 1;
  for (std::size_t k = 1; k < n; ++k)
    if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80) return 1;
  return n;
}

// Byte offset of the character with 0-based index idx (s.size() when past it).
std::size_t byte_offset(std::string_view s, std::size_t idx) {
  std::size_t i = 0;
  while (idx > 0 && i < s.size()) {
    i += char_bytes(s, i);
    --idx;
  }
  return i;
}

double parse_radix(std::string_view digits, int radix) {
  double v = 0;
  for (char c : digits) {
    int d;
    if (c >= '0' && c <= '9') d = c - '0';
    else if (radix == 16 && c >= 'a' && c <= 'f') d = c - 'a' + 10;
    else if (radix == 16 && c >= 'A' && c <= 'F') d = c - 'A' + 10;
    else break;
    if (d >= radix) break;
    v = v * radix + d;
  }
  return v;
}

// Converts between code pages with iconv; used once per text.
std::string convert(std::string_view in, const char* to, const char* from, bool& ok) {
  ok = true;
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) {
    ok = false;
    return std::string(in);
  }
  std::string out;
  out.resize(in.size() * 4 + 16);
  char* inp = const_cast<char*>(in.data());
  std::size_t inleft = in.size();
  char* outp = out.data();
  std::size_t outleft = out.size();
  while (inleft > 0) {
    if (iconv(cd, &inp, &inleft, &outp, &outleft) == static_cast<std::size_t>(-1)) {
      if (errno == E2BIG) {
        const std::size_t used = out.size() - outleft;
        out.resize(out.size() * 2);
        outp = out.data() + used;
        outleft = out.size() - used;
        continue;
      }
      ok = false;
      break;
    }
  }
  out.resize(out.size() - outleft);
  iconv_close(cd);
  return out;
}

// The 256 characters of Windows-1256, built once from iconv.
struct CodePage {
  std::array<std::string, 256> chars;
  std::unordered_map<std::string, int> codes;
  CodePage() {
    for (int c = 0; c < 256; ++c) {
      const char byte = static_cast<char>(c);
      bool ok = false;
      std::string u = convert(std::string_view(&byte, 1), "UTF-8", "WINDOWS-1256", ok);
      if (!ok || u.empty()) continue;
      chars[static_cast<std::size_t>(c)] = u;
      codes.emplace(u, c);
    }
  }
};

const CodePage& code_page() {
  static const CodePage page;
  return page;
}

}  // namespace

double val(std::string_view text) {
  std::string s;
  s.reserve(text.size());
  for (char c : text)
    if (!is_blank_for_val(c)) s.push_back(c);
  if (s.size() >= 2 && s[0] == '&') {
    const char k = s[1];
    if (k == 'H' || k == 'h') return parse_radix(std::string_view(s).substr(2), 16);
    if (k == 'O' || k == 'o') return parse_radix(std::string_view(s).substr(2), 8);
    return 0;
  }
  std::size_t i = 0;
  std::string num_text;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) num_text.push_back(s[i++]);
  bool digits = false;
  while (i < s.size() && s[i] >= '0' && s[i] <= '9') {
    num_text.push_back(s[i++]);
    digits = true;
  }
  if (i < s.size() && s[i] == '.') {
    num_text.push_back(s[i++]);
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') {
      num_text.push_back(s[i++]);
      digits = true;
    }
  }
  if (!digits) return 0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    std::size_t j = i + 1;
    std::string exp = "e";
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) exp.push_back(s[j++]);
    bool exp_digits = false;
    while (j < s.size() && s[j] >= '0' && s[j] <= '9') {
      exp.push_back(s[j++]);
      exp_digits = true;
    }
    if (exp_digits) num_text += exp;
  }
  const double v = std::strtod(num_text.c_str(), nullptr);
  if (!std::isfinite(v)) return 0;
  return v;
}

bool is_numeric(std::string_view text) {
  const std::string t = trim(text);
  if (t.empty()) return false;
  std::size_t i = 0;
  if (t[i] == '+' || t[i] == '-') ++i;
  bool digits = false;
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') ++i, digits = true;
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') ++i, digits = true;
  }
  if (!digits) return false;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
    ++i;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    bool exp_digits = false;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') ++i, exp_digits = true;
    if (!exp_digits) return false;
  }
  return i == t.size();
}

std::string num(double x) {
  if (std::isnan(x) || std::isinf(x)) return "0";
  if (x == 0) return "0";
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.15g", x);
  std::string s = buf;
  const auto e = s.find('e');
  if (e == std::string::npos) return s;
  // Exponent form: mantissa, "E", sign and at least two digits.
  std::string mant = s.substr(0, e);
  std::string exp = s.substr(e + 1);
  const char sign = exp[0];
  std::string digits = exp.substr(1);
  while (digits.size() > 2 && digits[0] == '0') digits.erase(0, 1);
  return mant + "E" + sign + digits;
}

double round_to(double x, int decimals) {
  if (!std::isfinite(x)) return x;
  if (decimals < 0) {
    const double scale = std::pow(10.0, -decimals);
    return round_to(x / scale, 0) * scale;
  }
  char buf[400];
  std::snprintf(buf, sizeof buf, "%.*f", decimals, x);
  const double r = std::strtod(buf, nullptr);
  return r == 0 ? 0.0 : r;  // no "-0"
}

std::string round_text(double x, int decimals) { return num(round_to(x, decimals)); }

double vb_int(double x) { return std::floor(x); }
double fix(double x) { return std::trunc(x); }

int int_val(std::string_view text) {
  constexpr double kLimit = 999999999;
  const double x = std::trunc(val(text));
  if (std::isnan(x)) return 0;
  return static_cast<int>(std::clamp(x, -kLimit, kLimit));
}

std::size_t len(std::string_view s) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < s.size(); i += char_bytes(s, i)) ++n;
  return n;
}

std::string mid(std::string_view s, std::size_t start, std::size_t count) {
  if (start == 0) start = 1;
  const std::size_t b = byte_offset(s, start - 1);
  if (b >= s.size()) return {};
  if (count == std::string::npos) return std::string(s.substr(b));
  const std::size_t e = b + byte_offset(s.substr(b), count);
  return std::string(s.substr(b, e - b));
}

std::string left(std::string_view s, std::size_t count) { return mid(s, 1, count); }

std::string right(std::string_view s, std::size_t count) {
  const std::size_t n = len(s);
  if (count >= n) return std::string(s);
  return mid(s, n - count + 1);
}

std::string char_at(std::string_view s, std::size_t pos) { return mid(s, pos, 1); }

std::string ltrim(std::string_view s) {
  std::size_t i = 0;
  while (i < s.size() && s[i] == ' ') ++i;
  return std::string(s.substr(i));
}

std::string rtrim(std::string_view s) {
  std::size_t e = s.size();
  while (e > 0 && s[e - 1] == ' ') --e;
  return std::string(s.substr(0, e));
}

std::string trim(std::string_view s) { return ltrim(rtrim(s)); }

std::string pad_right(std::string_view s, std::size_t width) {
  const std::size_t n = len(s);
  std::string out(s);
  if (n < width) out.append(width - n, ' ');
  return out;
}

std::string pad_left(std::string_view s, std::size_t width, char fill) {
  const std::size_t n = len(s);
  if (n >= width) return std::string(s);
  return std::string(width - n, fill) + std::string(s);
}

std::string upper(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return out;
}

std::string lower(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return out;
}

int ansi_code(std::string_view one_char) {
  if (one_char.empty()) return -1;
  const std::string first(one_char.substr(0, char_bytes(one_char, 0)));
  const auto& codes = code_page().codes;
  const auto it = codes.find(first);
  return it == codes.end() ? -1 : it->second;
}

std::string ansi_char(int code) {
  if (code < 0 || code > 255) return {};
  return code_page().chars[static_cast<std::size_t>(code)];
}

std::string to_cp1256(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const std::size_t n = char_bytes(utf8, i);
    const auto c = static_cast<unsigned char>(utf8[i]);
    if (n == 1 && c < 0x80) {
      out.push_back(static_cast<char>(c));
    } else {
      const int code = ansi_code(utf8.substr(i, n));
      out.push_back(code < 0 ? '?' : static_cast<char>(code));
    }
    i += n;
  }
  return out;
}

std::string from_cp1256(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() * 2);
  for (char b : bytes) {
    const auto c = static_cast<unsigned char>(b);
    if (c < 0x80) out.push_back(b);
    else {
      const std::string& u = code_page().chars[c];
      out += u.empty() ? std::string("?") : u;
    }
  }
  return out;
}

bool is_digit(std::string_view one_char) {
  return one_char.size() == 1 && one_char[0] >= '0' && one_char[0] <= '9';
}

}  // namespace obsdesk
