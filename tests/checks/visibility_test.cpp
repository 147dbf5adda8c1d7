// Visibility entry: kilometres and metres to metres, the questions, the minimum
// and maximum with their directions.
#include <gtest/gtest.h>

#include "checks/entry_checks.h"
#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

constexpr const char* kConfirm = "? آيا ديد افقي را تائيد مينمائيد ؟";

// A METAR at 09 UTC with the wind typed, the focus on the visibility.
Desk& at_visibility(test::Station& s, std::string_view kind = kMetar) {
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  k.Text48.text = "12";
  if (k.Combo5.text != kind) ws.choose(k.Combo5, kind);
  ws.type(k.Text1, "09");
  ws.type(k.Text2, "240");
  ws.type(k.Text3, "08");
  ws.focus_now(k.Text4);
  ws.take_messages();
  return ws;
}

bool asked(const std::vector<std::string>& m, const std::string& q) {
  for (const std::string& x : m)
    if (x.rfind(q + " ->", 0) == 0) return true;
  return false;
}

TEST(Visibility, TypedTextToMetres) {
  struct Case {
    const char* typed;
    bool answer;
    const char* stored;
    bool question;
    bool refused;
  };
  const Case cases[] = {
      {"12", true, "12000", false, false},  {"050", true, "50", true, false},    {"050", false, "", true, false},
      {"2999", true, "2999", false, false}, {"3001", true, "", false, true},     {"0.4", true, "400", false, false},
      {"0", true, "0", true, false},        {"20", true, "20000", false, false}, {"21", true, "21000", true, false},
      {"42", true, "40000", true, false},   {"70", true, "70000", true, false},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_visibility(s);
    FrmKashf& k = ws.FrmKashf;
    s.asker.queue(c.answer);
    ws.type(k.Text4, c.typed);
    ws.press_enter();
    EXPECT_EQ(k.Text4.text, c.stored) << c.typed;
    const auto m = ws.take_messages();
    EXPECT_EQ(asked(m, kConfirm), c.question) << c.typed;
    bool refused = false;
    for (const std::string& x : m) refused = refused || x == "FrmERR: مــقدار ديد افقي را چــك نمـائيـــد";
    EXPECT_EQ(refused, c.refused) << c.typed;
    EXPECT_EQ(ws.focused() == &k.TxtVM, !std::string(c.stored).empty()) << c.typed;
  }
}

TEST(Visibility, CharactersAndTheWindFirst) {
  test::Station s;
  Desk& ws = at_visibility(s);
  FrmKashf& k = ws.FrmKashf;
  ws.type(k.Text4, "5k");
  EXPECT_EQ(k.Text4.text, "");
  EXPECT_EQ(ws.take_messages().back(), "FrmERR: مــقدار ديد افقي را وارد نمـائيـــد");
  ws.type(k.Text4, "-");
  EXPECT_EQ(k.Text4.text, "-");
  k.Text4.text = "5";
  k.Text3.text = "";
  ws.focus_now(k.TxtVM);
  EXPECT_EQ(ws.focused(), &k.Text3);
  EXPECT_EQ(ws.take_messages().back(), "FrmERR: مــقدار سـرعـت باد را وارد نمـائيـــد");
}

TEST(Visibility, MinimumAndMaximumBorrowTheirWords) {
  struct Case {
    TextBox FrmKashf::*box;
    const char* typed;
    const char* words;
  };
  const Case cases[] = {
      {&FrmKashf::TxtVM, "a", "FrmERR: مــقدار دمــا را چــك نمـائيـــد"},
      {&FrmKashf::TxtVM, "1a", "FrmERR: مــقدار ســرعت باد را چــك نمـائيـــد"},
      {&FrmKashf::Text26, "x", "FrmERR: مــقدار دمــا را چــك نمـائيـــد"},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_visibility(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text4, "5");
    ws.set_text(k.CMbMAX, "N");
    ws.type(k.*c.box, c.typed);
    EXPECT_EQ((k.*c.box).text, "") << c.typed;
    EXPECT_EQ(ws.take_messages().back(), c.words) << c.typed;
  }
}

TEST(Visibility, DirectionListsNormalise) {
  struct Case {
    const char* typed;
    const char* stored;
  };
  const Case cases[] = {{"n", "N"}, {"sw", "SW"}, {"EN", "NE"}, {"wn", "NW"}, {"nn", ""}, {"sn", ""}, {"NWW", ""}};
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_visibility(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text4, "5");
    ws.type(k.CMbMAX, c.typed);
    ws.focus_now(k.Text26);
    EXPECT_EQ(k.CMbMAX.text, c.stored) << c.typed;
  }
}

TEST(Visibility, AnExtremeNeedsItsDirectionAndTheVisibility) {
  test::Station s;
  Desk& ws = at_visibility(s);
  FrmKashf& k = ws.FrmKashf;
  ws.type(k.Text4, "5");
  ws.type(k.Text26, "9");
  EXPECT_EQ(k.Text26.text, "");
  EXPECT_EQ(ws.focused(), &k.CMbMAX);
  EXPECT_EQ(ws.take_messages().back(), "box: ســمت ديد افــقــي وارد  شود");
  k.Text4.text = "";
  ws.type(k.CMbMAX, "N");
  EXPECT_EQ(k.CMbMAX.text, "");
  EXPECT_EQ(ws.focused(), &k.Text4);
}

}  // namespace
}  // namespace obsdesk
