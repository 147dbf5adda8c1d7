// Cloud entry as the observer types it: total cloud, amounts against the total,
// heights by layer, types from their figures, the summary, the overcast rules and
// the walk to the rain box.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

// The entry screen at an hour with the wind and the visibility typed.
Desk& at_cloud(test::Station& s, std::string_view kind = kSynop, const char* hour = "09",
                      bool twelve_hours = false) {
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  if (twelve_hours) ws.FrmOption.Combo1.text = std::string(kStation12);
  k.Text48.text = "12";
  if (k.Combo5.text != kind) ws.choose(k.Combo5, kind);
  ws.type(k.Text1, hour);
  ws.press_enter();
  k.Text2.text = "090";
  k.Text3.text = "05";
  k.Text4.text = "8000";
  k.Text25.text = "1.2";  // the tendency, asked for before the first layer
  ws.take_messages();
  return ws;
}

std::string last(Desk& ws) {
  const auto m = ws.take_messages();
  return m.empty() ? "" : m.back();
}

TEST(Cloud, TotalCloudShapesTheLayers) {
  struct Case {
    const char* typed;
    const char* kept;
    bool layers_shown;
    bool vv_open;
    const char* txtmin;
    bool refused;
  };
  const Case cases[] = {
      {"0", "0", false, false, "1500", false}, {"9", "9", false, true, "0", false}, {"t", "TR", true, false, "0", false},
      {"T5", "TR", true, false, "0", false},   {"10", "", true, false, "0", true},  {"a", "", true, false, "0", true},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_cloud(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text5, c.typed);
    EXPECT_EQ(k.Text5.text, c.kept) << c.typed;
    EXPECT_EQ(k.Frame1.visible, c.layers_shown) << c.typed;
    EXPECT_EQ(k.Image6.visible, !c.layers_shown) << c.typed;
    EXPECT_EQ(!k.Text12.locked, c.vv_open) << c.typed;
    EXPECT_EQ(k.txtmin.text, c.txtmin) << c.typed;
    EXPECT_EQ(last(ws) == "FrmERR: مــقدار كل ابــر را چــك نمـائيـــد", c.refused) << c.typed;
    if (std::string(c.kept) == "0" || std::string(c.kept) == "9") {
      for (Control* box : Controls{&k.Text6, &k.Text8, &k.Text10, &k.Text49, &k.Text17, &k.Text23, &k.Text7, &k.Text9,
                                   &k.Text11, &k.Text16, &k.Text22})
        EXPECT_EQ(box->text, "0") << c.typed << box->name;
      for (Control* list : Controls{&k.Combo1, &k.Combo2, &k.Combo3, &k.Combo4, &k.Combo6, &k.Combo9})
        EXPECT_EQ(list->text, kNoCloud) << c.typed << list->name;
    }
  }
}

// A box of a layer typed (a list chosen) after the boxes before it: what it
// keeps and the last message ("" for none).
TEST(Cloud, BoxesAgainstTheLayersBefore) {
  struct Step {
    const char *box, *text;
  };
  struct Case {
    std::vector<Step> before;
    const char *box, *typed;
    const char* kept;
    std::string said;
  };
  const std::string first = "FrmERR: مــقدار ابــر را چــك نمـائيـــد";
  const std::string other = "FrmERR: مــقدار  ابــر را چــك نمـائيـــد";
  const std::string type_twice = "FrmERR: نوع ابر لايه هاي  پايين  را چــك نمـائيـــد";
  const std::string type_thrice = "FrmERR: نوع ابر لايه هاي پايين  را چــك نمـائيـــد";
  const std::string trace = "FrmERR: مقدار ابر ترس با  نوع ابر  هـمخواني ندارد";
  const std::vector<Step> tr{{"Text5", "TR"}}, five{{"Text5", "5"}}, cu{{"Text5", "6"}, {"Combo1", "CU     1"}};
  const Case cases[] = {
      // amounts against the total: a trace takes only a trace, an overcast 9 or X above
      {tr, "Text6", "1", "", other},    {tr, "Text6", "t", "TR", ""},      {five, "Text6", "5", "5", ""},
      {five, "Text6", "6", "", other},  {five, "Text6", "0a", "", first},  {five, "Text8", "0a", "", other},
      {five, "Text17", "9", "9", ""},   {five, "Text17", "8", "", other},  {five, "Text23", "x", "X", ""},
      {five, "Text10", "X", "", other},
      // a second height needs the first
      {{{"Text5", "6"}, {"Text7", ""}}, "Text9", "300", "", "box: نه بايددراين باكس تايپ نمائيد"},
      // one low type once
      {cu, "Combo2", "CU     1", "", type_twice},
      {cu, "Combo3", "CU     1", "", type_thrice},
      {cu, "Combo3", "CB     3", "CB     3", ""},
      // a trace is a heap or a thunder cloud, tested as the type is left
      {{{"Text5", "TR"}, {"Text6", "TR"}}, "Combo1", "SC     4", "", trace},
      {{{"Text5", "TR"}, {"Text6", "TR"}}, "Combo1", "CB     3", "CB     3", ""},
  };
  // An empty text is put in place without a rule; a list is chosen from.
  auto put = [](Desk& ws, const char* box, const char* text) {
    Control& c = *ws.control(box);
    if (*text == '\0') {
      c.text = "";
    } else if (dynamic_cast<ComboBox*>(&c) != nullptr) {
      ws.choose(c, text);
    } else {
      ws.type(c, text);
    }
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_cloud(s);
    for (const Step& b : c.before) put(ws, b.box, b.text);
    ws.take_messages();
    put(ws, c.box, c.typed);
    if (std::string(c.box) == "Combo1") ws.focus_now(ws.FrmKashf.Text7);
    EXPECT_EQ(ws.control(c.box)->text, c.kept) << c.box << " " << c.typed;
    EXPECT_EQ(last(ws), c.said) << c.box << " " << c.typed;
  }
}

TEST(Cloud, HeightRangesByLayer) {
  struct Case {
    TextBox FrmKashf::*box;
    TextBox FrmKashf::*next;  // the field whose entry, or the moment after leaving, tests it
    const char* typed;
    bool good;
    const char* kept;  // a refused second or third height is put back to "0" by the summary
  };
  const Case cases[] = {
      {&FrmKashf::Text7, &FrmKashf::Text8, "29", false, ""},       {&FrmKashf::Text7, &FrmKashf::Text8, "30", true, "30"},
      {&FrmKashf::Text7, &FrmKashf::Text8, "2500", true, "2500"},  {&FrmKashf::Text7, &FrmKashf::Text8, "2501", false, ""},
      {&FrmKashf::Text9, &FrmKashf::Text10, "10", false, "0"},     {&FrmKashf::Text11, &FrmKashf::Text17, "3000", false, "0"},
      {&FrmKashf::Text16, &FrmKashf::Text23, "1499", false, ""},   {&FrmKashf::Text16, &FrmKashf::Text23, "1500", true, "1500"},
      {&FrmKashf::Text16, &FrmKashf::Text23, "3901", false, ""},   {&FrmKashf::Text16, &FrmKashf::Text23, "X", true, "X"},
      {&FrmKashf::Text22, &FrmKashf::Text74, "3299", false, ""},   {&FrmKashf::Text22, &FrmKashf::Text74, "6900", true, "6900"},
      {&FrmKashf::Text22, &FrmKashf::Text74, "6901", false, ""},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_cloud(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text5, "7");
    ws.type(k.Text6, "2");
    ws.type(k.Text7, "600");
    ws.type(k.*c.box, c.typed);
    if (!(k.*c.box).text.empty()) ws.focus_now(k.*c.next);  // a full middle or high height is tested at once
    EXPECT_EQ((k.*c.box).text, c.kept) << (k.*c.box).name << " " << c.typed;
    EXPECT_EQ(ws.focused() == &(k.*c.box), !c.good) << (k.*c.box).name << " " << c.typed;
  }
}

TEST(Cloud, OvercastForcesTheLayersAbove) {
  test::Station s;
  Desk& ws = at_cloud(s);
  FrmKashf& k = ws.FrmKashf;
  ws.type(k.Text5, "8");
  ws.type(k.Text6, "8");
  ws.type(k.Text7, "450");
  ws.press_enter();  // an overcast low layer: on to the rain box
  EXPECT_EQ(k.Text17.text, "9");
  EXPECT_EQ(k.Text16.text, "X");
  EXPECT_EQ(k.Text23.text, "X");
  EXPECT_EQ(k.Text22.text, "X");
  EXPECT_EQ(k.Combo6.text, "       X");
  EXPECT_EQ(k.Combo9.text, "       X");
  EXPECT_EQ(ws.focused(), &k.Text50);

  test::Station s2;
  Desk& w2 = at_cloud(s2, kMetar);
  FrmKashf& k2 = w2.FrmKashf;
  w2.type(k2.Text5, "8");
  w2.type(k2.Text17, "8");
  w2.type(k2.Text16, "2000");
  w2.press_enter();
  EXPECT_EQ(k2.Text23.text, "9");
  EXPECT_EQ(k2.Text22.text, "X");
  EXPECT_EQ(k2.Combo9.text, "       X");
  EXPECT_EQ(w2.focused(), &k2.Text74);
}

TEST(Cloud, RainfallRuleEndsTheBlock) {
  struct Case {
    std::string_view kind;
    const char* hour;
    bool twelve;
    const char* next;
  };
  const Case cases[] = {
      {kSynop, "06", false, "Text50"}, {kSynop, "12", true, "Text42"}, {kSynop, "03", false, "Text59"},
      {kMetar, "06", false, "Text74"}, {kSynMet, "13", false, "Text74"},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_cloud(s, c.kind, c.hour, c.twelve);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text5, "3");
    ws.type(k.Text22, "0");
    ws.press_enter();
    EXPECT_EQ(ws.focused()->name, c.next) << c.kind << c.hour;
    if (std::string(c.next) == "Text42") {
      EXPECT_TRUE(k.Text42.visible);
      EXPECT_FALSE(k.Text50.visible);
    }
  }
}

}  // namespace
}  // namespace obsdesk
