#include "symbols/meanings.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "symbols/symbols.h"

namespace obsdesk {
namespace {

// The id picks the right table and row: E and Ep, W and ww share a first letter,
// and a figure out of its table's range or with the wrong number of digits has
// no meaning rather than the meaning of another code.
TEST(SymbolMeaning, TheIdPicksItsTableAndRow) {
  const struct {
    std::string id;
    std::string_view meaning;
  } cases[] = {
      {"ww00", "Cloud development not observed"},
      {"ww63", "Rain, continuous, moderate"},
      {"ww99", "Thunderstorm, heavy, with hail"},
      {"W5", "Drizzle"},
      {"W9", "Thunderstorm(s)"},
      {"E0", "Surface dry"},
      {"Ep0", "Ground predominantly covered by ice"},
      {"Ep9", "Snow covering the ground completely, deep drifts"},
      {"a4", "Steady"},
      {"ntf8", "Steady or increasing, then decreasing"},
      {"ww6", ""},
      {"ww100", ""},
      {"W10", ""},
      {"a9", ""},
      {"E", ""},
      {"Ex", ""},
      {"ww-1", ""},
      {"CL1", ""},
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(symbol_meaning(c.id), c.meaning) << c.id;
}

// Every code of the tables the hint window covers has its own meaning: a row
// left out or repeated would shift every later code onto its neighbour's words.
TEST(SymbolMeaning, EveryCodeOfATableHasItsOwnMeaning) {
  for (const auto& table : symbol_tables()) {
    if (table.name != "ww" && table.name != "W" && table.name != "E" && table.name != "Ep" && table.name != "a")
      continue;
    std::set<std::string_view> seen;
    for (const auto& id : table.ids) {
      const std::string_view m = symbol_meaning(id);
      EXPECT_FALSE(m.empty()) << id;
      EXPECT_TRUE(seen.insert(m).second) << id << " repeats " << m;
    }
  }
}

}  // namespace
}  // namespace obsdesk
