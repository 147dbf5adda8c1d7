// A small well-formedness check of the SVG the symbols write: elements nest
// and close, attributes are quoted once each, text holds no bare "<" or "&".
#pragma once

#include <cstdlib>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace obsdesk {

// "" when the text is well-formed XML of elements, attributes and text;
// otherwise what is wrong and where.
inline std::string xml_problem(std::string_view s) {
  std::vector<std::string> open;
  std::size_t i = 0;
  bool root_closed = false;
  auto name_char = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == ':' || c == '_'; };
  while (i < s.size()) {
    if (s[i] != '<') {
      if (s[i] == '&') {
        const auto semi = s.find(';', i);
        const auto ent = s.substr(i, semi == std::string_view::npos ? 0 : semi - i + 1);
        if (ent != "&lt;" && ent != "&gt;" && ent != "&amp;" && ent != "&quot;")
          return "bare & at " + std::to_string(i);
      }
      if (!std::isspace(static_cast<unsigned char>(s[i])) && (open.empty()))
        return "text outside the root at " + std::to_string(i);
      ++i;
      continue;
    }
    if (root_closed) return "second root at " + std::to_string(i);
    const bool closing = i + 1 < s.size() && s[i + 1] == '/';
    std::size_t j = i + (closing ? 2 : 1);
    const std::size_t name_start = j;
    while (j < s.size() && name_char(s[j])) ++j;
    const std::string name(s.substr(name_start, j - name_start));
    if (name.empty()) return "element without a name at " + std::to_string(i);
    if (closing) {
      if (open.empty() || open.back() != name) return "</" + name + "> closes nothing open";
      open.pop_back();
      if (j >= s.size() || s[j] != '>') return "bad closing tag " + name;
      i = j + 1;
      if (open.empty()) root_closed = true;
      continue;
    }
    std::vector<std::string> attributes;
    for (;;) {
      while (j < s.size() && std::isspace(static_cast<unsigned char>(s[j]))) ++j;
      if (j >= s.size()) return "unterminated <" + name + ">";
      if (s[j] == '>' || (s[j] == '/' && j + 1 < s.size() && s[j + 1] == '>')) break;
      const std::size_t a = j;
      while (j < s.size() && name_char(s[j])) ++j;
      const std::string attr(s.substr(a, j - a));
      if (attr.empty() || j + 1 >= s.size() || s[j] != '=' || s[j + 1] != '"')
        return "bad attribute in <" + name + "> at " + std::to_string(a);
      for (const auto& seen : attributes)
        if (seen == attr) return "attribute " + attr + " twice in <" + name + ">";
      attributes.push_back(attr);
      const auto end = s.find('"', j + 2);
      if (end == std::string_view::npos) return "unterminated attribute " + attr;
      const auto value = s.substr(j + 2, end - j - 2);
      if (value.find('<') != std::string_view::npos) return "< in attribute " + attr;
      if (value.find("nan") != std::string_view::npos || value.find("inf") != std::string_view::npos)
        return "not a number in attribute " + attr + " of <" + name + ">";
      j = end + 1;
    }
    if (s[j] == '/') {
      i = j + 2;
      if (open.empty()) root_closed = true;
    } else {
      open.push_back(name);
      i = j + 1;
    }
  }
  if (!open.empty()) return "<" + open.back() + "> never closed";
  if (!root_closed) return "no root element";
  return "";
}

// Every number written in the named attributes, path data included.
inline std::vector<double> numbers_in_attributes(std::string_view s, std::initializer_list<std::string_view> names) {
  std::vector<double> out;
  for (std::string_view n : names) {
    const std::string key = " " + std::string(n) + "=\"";
    for (auto p = s.find(key); p != std::string_view::npos; p = s.find(key, p + 1)) {
      const auto start = p + key.size(), end = s.find('"', start);
      const std::string value(s.substr(start, end - start));
      const char* c = value.c_str();
      while (*c) {
        if ((*c >= '0' && *c <= '9') || *c == '-' || *c == '.') {
          char* next = nullptr;
          const double v = std::strtod(c, &next);
          if (next == c) {
            ++c;
            continue;
          }
          out.push_back(v);
          c = next;
        } else {
          ++c;
        }
      }
    }
  }
  return out;
}

}  // namespace obsdesk
