// The weather symbols: every picture the screens and boards carry has a symbol,
// every symbol is a well-formed SVG that stays inside its box, and no two codes
// of one table draw the same figure.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "screens/frm_kashf.h"
#include "screens/record.h"
#include "checks/tendency.h"
#include "screens/board_tables.h"
#include "screens/weather_tables.h"
#include "symbols/contact_sheet.h"
#include "symbols/symbols.h"
#include "symbols/xml_check.h"
#include "screens/dialogs.h"

namespace obsdesk {
namespace {

TEST(Symbols, EveryPictureOfTheScreensAndBoardsHasASymbol) {
  std::vector<std::string> ids;
  for (int ww = 0; ww < 100; ++ww) ids.emplace_back(present_weather_picture(ww));
  for (const auto& w : past_weather_table()) ids.emplace_back(w.picture);
  for (const auto& g : ground_state_table()) ids.emplace_back(g.picture);
  for (const auto& s : sky_letter_table()) ids.emplace_back(s.picture);
  FrmNTF tendency;
  for (Image* trace : tendency.trace) ids.push_back(trace->text);
  FrmKashf entry;
  for (Control* c : entry.controls())
    if (c->kind == Kind::Image && !c->text.empty()) ids.push_back(c->text);

  // The cloud-type lists of the entry screen draw their cloud's symbol; type 0
  // and a layer hidden by a lower one ("X") draw none.
  std::size_t none = 0;
  for (auto [level, items] : {std::pair{"CL", &low_cloud_types()}, std::pair{"CM", &middle_cloud_types()},
                              std::pair{"CH", &high_cloud_types()}}) {
    for (const std::string& item : *items) {
      const std::string id = cloud_picture(level, item);
      if (id.empty()) ++none;
      else ids.push_back(id);
    }
  }
  EXPECT_EQ(none, 6u);
  EXPECT_EQ(cloud_picture("CM", "NS     2"), "CM2");

  for (const std::string& id : ids) {
    SCOPED_TRACE(id);
    EXPECT_NE(symbol_figure(id), nullptr);
    EXPECT_FALSE(symbol_svg(id).empty());
  }
  // An empty picture, an unknown id and a code without a symbol draw nothing.
  for (const char* id : {"", "ww100", "ww6", "W10", "CL0", "N/", "sky_x"}) {
    EXPECT_EQ(symbol_figure(id), nullptr) << id;
    EXPECT_EQ(symbol_svg(id), "") << id;
  }
}

TEST(Symbols, TablesAreCompleteWellFormedAndInsideTheirBox) {
  const std::vector<std::pair<std::string, std::size_t>> sizes = {
      {"ww", 100}, {"W", 10}, {"CL", 9}, {"CM", 9}, {"CH", 9}, {"N", 10}, {"a", 9}, {"E", 10}, {"Ep", 10}, {"sky", 9}};
  ASSERT_EQ(symbol_tables().size(), sizes.size());
  for (std::size_t t = 0; t < sizes.size(); ++t) {
    const SymbolTable& table = symbol_tables()[t];
    EXPECT_EQ(table.name, sizes[t].first);
    EXPECT_EQ(table.ids.size(), sizes[t].second) << table.name;
    for (const std::string& id : table.ids) {
      SCOPED_TRACE(id);
      const std::string svg = symbol_svg(id);
      EXPECT_EQ(xml_problem(svg), "");
      EXPECT_NE(svg.find("viewBox=\"-32 -32 64 64\""), std::string::npos);
      // Every coordinate the figure writes lies within the 64-unit box, so
      // nothing is clipped at any size.
      const std::string body = svg.substr(svg.find("<g"));
      for (double v : numbers_in_attributes(body, {"d", "cx", "cy", "x", "y"})) {
        EXPECT_GE(v, -32.0);
        EXPECT_LE(v, 32.0);
      }
    }
  }
}

TEST(Symbols, NoTwoCodesOfOneTableDrawTheSameFigure) {
  for (const SymbolTable& table : symbol_tables()) {
    for (std::size_t i = 0; i < table.ids.size(); ++i) {
      const Figure* a = symbol_figure(table.ids[i]);
      ASSERT_NE(a, nullptr) << table.ids[i];
      for (std::size_t j = i + 1; j < table.ids.size(); ++j)
        EXPECT_NE(*a, *symbol_figure(table.ids[j])) << table.ids[i] << " and " << table.ids[j];
    }
  }
}

TEST(Symbols, ContactSheetShowsEveryCodeUnderItsSymbol) {
  const std::string sheet = contact_sheet_svg();
  EXPECT_EQ(xml_problem(sheet), "");
  std::size_t codes = 0, expected = 0;
  for (const SymbolTable& t : symbol_tables()) {
    expected += t.ids.size();
    EXPECT_NE(sheet.find(">" + t.title + "<"), std::string::npos) << t.title;
  }
  for (std::size_t p = sheet.find("text-anchor=\"middle\">"); p != std::string::npos;
       p = sheet.find("text-anchor=\"middle\">", p + 1))
    ++codes;
  EXPECT_EQ(codes, expected);
}

}  // namespace
}  // namespace obsdesk
