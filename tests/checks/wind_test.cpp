// Wind entry as the observer types it: direction shortcuts and limits, speeds
// against the station's limit and the 50 m/s question, the gust group, the wind
// texts of 21 UTC.
#include <gtest/gtest.h>

#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

constexpr const char* kCheckDirection = "FrmERR: مــقدار ســمت باد را چــك نمـائيـــد";
constexpr const char* kCheckSpeed = "FrmERR: مــقدار ســرعت باد را چــك نمـائيـــد";

// The entry screen of a report kind at 09 UTC, the focus on the direction.
Desk& at_wind(test::Station& s, std::string_view kind = kMetar) {
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  k.Text48.text = "12";
  if (k.Combo5.text != kind) ws.choose(k.Combo5, kind);
  ws.type(k.Text1, "09");
  ws.press_enter();
  ws.take_messages();
  return ws;
}

bool said(const std::vector<std::string>& messages, const std::string& m) {
  for (const std::string& x : messages)
    if (x == m || x.rfind(m + " ->", 0) == 0) return true;
  return false;
}

// As typed, and (leave) as the box is left for the speed.
TEST(Wind, Direction) {
  struct Case {
    const char* typed;
    bool leave;
    const char* dd;
    const char* ff;
    const char* focus;
    bool refused;
  };
  const Case cases[] = {
      {"c", false, "CALM", "00", "Text4", false}, {"v", false, "VRB ", "", "Text3", false},
      {"0", false, "000 ", "00", "Text4", false}, {"360", false, "360", "", "Text2", false},
      {"354", false, "", "", "Text2", true},      {"3a", false, "", "", "Text2", true},
      {"ش", false, "", "", "Text2", true},        {"180", true, "180", "", "Text3", false},
      {"55", true, "", "", "Text2", true},        {"", true, "", "", "Text2", true},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_wind(s);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text2, c.typed);
    if (c.leave) ws.focus_now(k.Text3);
    EXPECT_EQ(k.Text2.text, c.dd) << c.typed;
    EXPECT_EQ(k.Text3.text, c.ff) << c.typed;
    EXPECT_EQ(ws.focused()->name, c.focus) << c.typed;
    EXPECT_EQ(said(ws.take_messages(), kCheckDirection), c.refused) << c.typed;
  }
}

TEST(Wind, SpeedAgainstTheDirectionAndTheLimits) {
  struct Case {
    const char* dd;
    const char* limit;  // txtmax8
    const char* ff;
    bool answer;
    const char* kept;
    const char* question;  // "" none
    bool refused;
  };
  const char* station_q = "? آيا سرعت باد را تائيد مينمائيد ؟";
  const char* fifty_q = "? آيا سرعت باد را با بيش از 50 متر بر ثانيه  تائيد مينمائيد ؟";
  const Case cases[] = {
      {"090", "60", "5", true, "05", "", false},        {"090", "60", "0", true, "", "", true},
      {"VRB ", "60", "0", true, "00", "", false},       {"CALM", "60", "5", true, "", "", true},
      {"000 ", "60", "00", true, "00", "", false},      {"090", "60", "49", true, "49", "", false},
      {"090", "60", "50", true, "50", fifty_q, false},  {"090", "60", "50", false, "", fifty_q, false},
      {"090", "20", "25", false, "", station_q, false}, {"090", "60", "1a", true, "", "", true},
  };
  for (const Case& c : cases) {
    test::Station s;
    Desk& ws = at_wind(s);
    FrmKashf& k = ws.FrmKashf;
    ws.FrmOption.txtmax8.text = c.limit;
    k.Text2.text = c.dd;
    s.asker.queue(c.answer);
    ws.type(k.Text3, c.ff);
    ws.focus_now(k.TXTGUSTY);
    EXPECT_EQ(k.Text3.text, c.kept) << c.dd << "/" << c.ff;
    const auto m = ws.take_messages();
    if (*c.question) {
      EXPECT_TRUE(said(m, c.question)) << c.dd << "/" << c.ff;
    }
    EXPECT_EQ(said(m, kCheckSpeed), c.refused) << c.dd << "/" << c.ff;
  }
}

TEST(Wind, SpeedNeedsADirectionFirst) {
  test::Station s;
  Desk& ws = at_wind(s);
  FrmKashf& k = ws.FrmKashf;
  ws.focus_now(k.Text3);
  EXPECT_EQ(ws.focused(), &k.Text2);
  EXPECT_TRUE(said(ws.take_messages(), "FrmERR: مــقدار ســمت باد را وارد نمـائيـــد"));
  k.Text2.text = "5";  // kept by leaving, refused when the speed is entered
  ws.focus_now(k.Text3);
  EXPECT_EQ(k.Text2.text, "");
  EXPECT_EQ(ws.focused(), &k.Text2);
}

// A SYNOP has no gust box; a METAR's gust, once emptied, leaves the group.
TEST(Wind, EnterAfterTheSpeedAndTheGustGroup) {
  for (std::string_view kind : {kMetar, kSynop}) {
    test::Station s;
    Desk& ws = at_wind(s, kind);
    FrmKashf& k = ws.FrmKashf;
    ws.type(k.Text2, "240");
    ws.type(k.Text3, "8");
    ws.press_enter();
    EXPECT_EQ(ws.focused(), kind == kSynop ? &k.Text4 : &k.TXTGUSTY);
    if (kind == kSynop) continue;
    ws.type(k.TXTGUSTY, "15");
    ws.type(k.TXTGUSTY, "");
    EXPECT_EQ(ws.FrmCode.txtdddff.text, "24008KT");
  }
}

TEST(Wind, WindTextsOf21AreFiveCharacters) {
  test::Station s;
  Desk& ws = at_wind(s, kSynop);
  FrmKashf& k = ws.FrmKashf;
  k.Text2.text = "090";
  ws.type(k.Text1, "21");
  for (TextBox* box : {&k.Txtmaxwind, &k.Txttond}) {
    ws.type(*box, "");
    ws.focus_now(k.Text74);
    EXPECT_EQ(box->text, "     ") << box->name;
    ws.type(*box, "123");
    ws.focus_now(k.Text74);
    EXPECT_EQ(box->text, "") << box->name;
    EXPECT_EQ(ws.focused(), box) << box->name;
    ws.type(*box, "27015");
    ws.focus_now(k.Text74);
    EXPECT_EQ(box->text, "27015") << box->name;
  }
  const auto m = ws.take_messages();
  EXPECT_TRUE(said(m, "FrmERR: مــقدار حداكثر باد را چــك نمـائيـــد"));
  EXPECT_TRUE(said(m, "FrmERR: مــقدار تند باد را چــك نمـائيـــد"));
  ws.focus_now(k.Txtmaxwind);
  ws.press_enter();
  EXPECT_EQ(ws.focused(), &k.Txttond);
  ws.press_enter();
  EXPECT_EQ(ws.focused(), &k.Text74);
}

}  // namespace
}  // namespace obsdesk
