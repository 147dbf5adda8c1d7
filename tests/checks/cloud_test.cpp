// Cloud entry as the observer types it: total cloud, amounts against the total,
// heights by layer, types from their figures, the summary, the overcast rules and
// the walk to the rain box.
#include <gtest/gtest.h>

#include "core/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

// The entry screen at an hour with the wind and the visibility typed.
Workstation& at_cloud(test::Station& s, std::string_view kind = kSynop, const char* hour = "09",
                      bool twelve_hours = false) {
  Workstation& ws = s.open_entry();
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

std::string last(Workstation& ws) {
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
      {"5", "5", true, false, "0", false},     {"a", "", true, false, "0", true},   {"10", "", true, false, "0", true},
      {"-", "", true, false, "0", true},       {"5a", "", true, false, "0", true},  {"T5", "TR", true, false, "0", false},
  };
  for (const Case& c : cases) {
    test::Station s;
    Workstation& ws = at_cloud(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text5, c.typed);
    EXPECT_EQ(k.Text5.text, c.kept) << c.typed;
    EXPECT_EQ(k.Frame1.visible, c.layers_shown) << c.typed;
    EXPECT_EQ(k.Frame3.visible, c.layers_shown) << c.typed;
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

TEST(Cloud, AmountsAgainstTheTotal) {
  struct Case {
    const char* total;
    TextBox FrmKashf::*box;
    const char* typed;
    const char* kept;
    const char* refusal;  // "" when accepted
  };
  const char* first = "FrmERR: مــقدار ابــر را چــك نمـائيـــد";
  const char* other = "FrmERR: مــقدار  ابــر را چــك نمـائيـــد";
  const Case cases[] = {
      {"TR", &FrmKashf::Text6, "1", "", other},      {"TR", &FrmKashf::Text6, "t", "TR", ""},
      {"TR", &FrmKashf::Text6, "0", "0", ""},        {"5", &FrmKashf::Text6, "5", "5", ""},
      {"5", &FrmKashf::Text6, "6", "", other},       {"5", &FrmKashf::Text6, "0a", "", first},
      {"5", &FrmKashf::Text8, "0a", "", other},      {"5", &FrmKashf::Text8, "a", "", other},
      {"5", &FrmKashf::Text17, "9", "9", ""},        {"5", &FrmKashf::Text17, "8", "", other},
      {"5", &FrmKashf::Text23, "x", "X", ""},        {"5", &FrmKashf::Text23, "9", "9", ""},
      {"5", &FrmKashf::Text10, "X", "", other},      {"8", &FrmKashf::Text10, "8", "8", ""},
  };
  for (const Case& c : cases) {
    test::Station s;
    Workstation& ws = at_cloud(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text5, c.total);
    ws.take_messages();
    ws.type(k.*c.box, c.typed);
    EXPECT_EQ((k.*c.box).text, c.kept) << c.total << "/" << c.typed;
    EXPECT_EQ(last(ws), c.refusal) << c.total << "/" << c.typed;
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
      {&FrmKashf::Text7, &FrmKashf::Text8, "X", false, ""},        {&FrmKashf::Text9, &FrmKashf::Text10, "10", false, "0"},
      {&FrmKashf::Text11, &FrmKashf::Text17, "3000", false, "0"},  {&FrmKashf::Text11, &FrmKashf::Text49, "600", true, "600"},
      {&FrmKashf::Text16, &FrmKashf::Text23, "1499", false, ""},   {&FrmKashf::Text16, &FrmKashf::Text23, "1500", true, "1500"},
      {&FrmKashf::Text16, &FrmKashf::Text23, "3901", false, ""},   {&FrmKashf::Text16, &FrmKashf::Text23, "X", true, "X"},
      {&FrmKashf::Text16, &FrmKashf::Text23, "0", true, "0"},      {&FrmKashf::Text22, &FrmKashf::Text74, "3299", false, ""},
      {&FrmKashf::Text22, &FrmKashf::Text74, "6900", true, "6900"}, {&FrmKashf::Text22, &FrmKashf::Text74, "6901", false, ""},
      {&FrmKashf::Text22, &FrmKashf::Text74, "12", false, ""},
  };
  for (const Case& c : cases) {
    test::Station s;
    Workstation& ws = at_cloud(s);
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

TEST(Cloud, LowestHeightAndTheSummary) {
  test::Station s;
  Workstation& ws = at_cloud(s);
  FrmKashf& k = ws.FrmKashf;
  ws.type(k.Text5, "8");
  ws.type(k.Text6, "3");
  ws.type(k.Combo1, "4");
  ws.type(k.Text7, "600");
  EXPECT_EQ(k.txtmin.text, "600");
  EXPECT_EQ(k.Text49.text, "3");
  EXPECT_EQ(k.Combo4.text, "SC     4");
  EXPECT_EQ(ws.FrmCode.Text98.text, "     ");
  ws.type(k.Text8, "5");
  ws.type(k.Text9, "300");
  ws.type(k.Text10, "0");
  ws.type(k.Text11, "0");
  EXPECT_EQ(k.txtmin.text, "300");
}

TEST(Cloud, SecondHeightNeedsTheFirst) {
  test::Station s;
  Workstation& ws = at_cloud(s);
  FrmKashf& k = ws.FrmKashf;
  ws.type(k.Text5, "6");
  k.Text7.text = "";
  ws.type(k.Text9, "300");
  EXPECT_EQ(k.Text9.text, "");
  EXPECT_EQ(last(ws), "box: نه بايددراين باكس تايپ نمائيد");
}

TEST(Cloud, OvercastForcesTheLayersAbove) {
  test::Station s;
  Workstation& ws = at_cloud(s);
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
  Workstation& w2 = at_cloud(s2, kMetar);
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

TEST(Cloud, TheSameLowTypeTwiceIsRefused) {
  test::Station s;
  Workstation& ws = at_cloud(s);
  FrmKashf& k = ws.FrmKashf;
  ws.type(k.Text5, "6");
  ws.choose(k.Combo1, "CU     1");
  ws.choose(k.Combo2, "CU     1");
  EXPECT_EQ(k.Combo2.text, "");
  EXPECT_EQ(last(ws), "FrmERR: نوع ابر لايه هاي  پايين  را چــك نمـائيـــد");
  ws.choose(k.Combo3, "CU     1");
  EXPECT_EQ(k.Combo3.text, "");
  EXPECT_EQ(last(ws), "FrmERR: نوع ابر لايه هاي پايين  را چــك نمـائيـــد");
  ws.choose(k.Combo2, "       0");
  ws.choose(k.Combo3, "CB     3");
  EXPECT_EQ(k.Combo3.text, "CB     3");
}

TEST(Cloud, ATraceIsAHeapOrAThunderCloud) {
  for (const char* type : {"SC     4", "CB     3", "CU     2", "CB     9"}) {
    test::Station s;
    Workstation& ws = at_cloud(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text5, "TR");
    ws.type(k.Text6, "TR");
    ws.choose(k.Combo1, type);
    ws.focus_now(k.Text7);
    const bool good = std::string(type) != "SC     4";
    EXPECT_EQ(k.Combo1.text, good ? type : "") << type;
    EXPECT_EQ(last(ws) == "FrmERR: مقدار ابر ترس با  نوع ابر  هـمخواني ندارد", !good) << type;
  }
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
      {kSynop, "15", false, "Text59"}, {kMetar, "06", false, "Text74"}, {kSynMet, "13", false, "Text74"},
  };
  for (const Case& c : cases) {
    test::Station s;
    Workstation& ws = at_cloud(s, c.kind, c.hour, c.twelve);
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

TEST(Cloud, LeavingTheTotalBringsTheTemperatureOfTwelveHoursBefore) {
  test::Station s;
  Workstation& ws = at_cloud(s, kSynop, "03");
  ws.FrmMain.txt15T.text = "12.5";
  ws.type(ws.FrmKashf.Text5, "3");
  ws.press_enter();
  EXPECT_EQ(ws.FrmKashf.txtt12.text, "12.5");
}

}  // namespace
}  // namespace obsdesk
