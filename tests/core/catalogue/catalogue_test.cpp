// The station catalogue and the station picker.
#include "settings/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "settings/select_station.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

// Thirty provinces in alphabetical order, each with its group; 350 names in
// all, none empty and none twice in a group: a name lost or doubled shows here.
TEST(Catalogue, EveryProvinceHasItsGroup) {
  const auto& groups = station_groups();
  ASSERT_EQ(groups.size(), 30u);
  ASSERT_EQ(provinces().size(), 30u);
  EXPECT_TRUE(std::is_sorted(provinces().begin(), provinces().end()));
  std::size_t total = 0;
  for (const auto& g : groups) {
    const std::set<std::string_view> unique(g.names.begin(), g.names.end());
    EXPECT_EQ(unique.size(), g.names.size()) << "a name twice in " << g.province;
    EXPECT_EQ(unique.count(""), 0u) << g.province;
    total += g.names.size();
  }
  EXPECT_EQ(total, 350u);
  for (const std::string& p : provinces()) EXPECT_FALSE(stations_of(p).empty()) << p;
}

TEST(Catalogue, AProvinceTextFindsItsGroupWhole) {
  struct Case {
    std::string_view province;
    std::size_t size;
    std::string_view first, last;
  };
  const Case table[] = {
      {"KHORASAN SHOMALI", 5, "BOJNORD", "MANEH VA SEMELGHAN"},
      {"khorasan shomali", 5, "BOJNORD", "MANEH VA SEMELGHAN"},  // matched in capitals
      {"AZAR BAYJAN_SHARGHI", 13, "AHAR", " SARAB"},              // the blank is part of the name
      {"FARS", 23, "Ghir", "ZARRIN DASHT"},
      {"", 0, "", ""},
      {"TEHRAN ", 0, "", ""},  // the whole text must match
  };
  for (const Case& c : table) {
    const auto names = stations_of(c.province);
    ASSERT_EQ(names.size(), c.size) << c.province;
    if (c.size == 0) continue;
    EXPECT_EQ(names.front(), c.first) << c.province;
    EXPECT_EQ(names.back(), c.last) << c.province;
  }
  const auto north = stations_of("KHORASAN SHOMALI");
  EXPECT_EQ(north[2], "BOJNORD AIRPORT");
  EXPECT_EQ(north[3], "JAJARM");
}

TEST(Catalogue, ChoosingAProvinceOnTheStartScreenSetsTheOneInUse) {
  test::Station s;
  Desk& ws = s.start();
  FrmMain& m = ws.FrmMain;
  EXPECT_EQ(m.ComboOstan.text, "GUILAN");
  EXPECT_EQ(m.ComboOstan.items, provinces());
  EXPECT_EQ(m.LabOstan.text, "TEHRAN");  // the bank's own province
  ws.click(m.Command1);
  ASSERT_TRUE(m.ComboOstan.visible);
  ws.choose(m.ComboOstan, "KERMAN");
  EXPECT_EQ(m.LabOstan.text, "KERMAN");
}

struct Picked {
  bool called = false;
  std::string text;
};

void open_picker(Desk& ws, const std::string& start, Picked& out) {
  select_station(ws, start, [&out](Desk&, const std::string& t) {
    out.called = true;
    out.text = t;
  });
}

TEST(Catalogue, ThePickerReturnsTheChosenNameAsItStands) {
  test::Station s;
  Desk& ws = s.start();
  FrmSelectStation& d = ws.FrmSelectStation;
  ws.click(ws.FrmMain.Command1);
  ws.choose(ws.FrmMain.ComboOstan, "AZAR BAYJAN_SHARGHI");

  Picked got;
  open_picker(ws, "MEHRABAD", got);
  EXPECT_EQ(ws.active_screen(), &d);
  EXPECT_EQ(d.Combo1.text, "     Select Station");
  EXPECT_EQ(d.Txtfind.text, "MEHRABAD");
  EXPECT_EQ(d.Combo1.items.size(), 13u);
  EXPECT_FALSE(got.called);
  ws.choose(d.Combo1, " SARAB");
  EXPECT_TRUE(got.called);
  EXPECT_EQ(got.text, " SARAB");
  EXPECT_FALSE(d.loaded);
  EXPECT_FALSE(d.visible);
  EXPECT_EQ(ws.active_screen(), &ws.FrmMain);

  // Back on the start screen the bank's province is read again; a second opening
  // lists afresh, and its window's box returns nothing.
  EXPECT_EQ(ws.FrmMain.LabOstan.text, "TEHRAN");
  Picked none;
  open_picker(ws, "AHAR", none);
  EXPECT_EQ(d.Combo1.items.size(), 16u);
  ws.unload(d);
  EXPECT_TRUE(none.called);
  EXPECT_EQ(none.text, "");
  EXPECT_FALSE(d.loaded);
}

TEST(Catalogue, AProvinceWithNoGroupGivesAnEmptyPicker) {
  for (const char* province : {"", "NOWHERE"}) {
    test::Station s;
    Desk& ws = s.start();
    ws.FrmMain.LabOstan.text = province;
    Picked got;
    open_picker(ws, "", got);
    EXPECT_TRUE(ws.FrmSelectStation.Combo1.items.empty()) << province;
    EXPECT_THROW(ws.choose(ws.FrmSelectStation.Combo1, "TABRIZ AIRPORT"), UsageError);
  }
}

}  // namespace
}  // namespace obsdesk
