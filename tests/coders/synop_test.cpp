// The SYNOP coder through the entry screen: a filled observation, a press of
// Cmdsynop, then the panel, txtSYN, the two report lines and the archive lines.
#include "coders/synop.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "coders/code_panel.h"
#include "coders/synop_groups.h"
#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

// Texts put straight into the boxes, as an observer leaves them.
void put(Desk& ws, std::initializer_list<std::pair<const char*, const char*>> values) {
  for (const auto& [name, text] : values) {
    Control* c = ws.control(name);
    ASSERT_NE(c, nullptr) << name;
    c->text = text;
  }
}

// The report as a bulletin carries it, section 0 in front, against its file in
// tests/data/synop, which any FM-12 decoder can read.
void expect_bulletin_file(Desk& ws, const std::string& file) {
  std::ifstream in(std::string(OBSDESK_SOURCE_DIR) + "/tests/data/synop/" + file);
  ASSERT_TRUE(in) << file;
  std::string stored;
  std::getline(in, stored);
  const FrmKashf& k = ws.FrmKashf;
  EXPECT_EQ("AAXX " + k.TXTDAYmi.text + k.Text1.text + "1 " + ws.FrmOption.NUMCOD.text + " " + k.txtSYN.text, stored);
}

// The worked example: hour 12, a layer of cumulus at 600 m, no weather group.
void fill_worked_example(Desk& ws) {
  FrmKashf& k = ws.FrmKashf;
  k.Combo5.text = std::string(kSynop);
  k.Cmdsynop.enabled = true;
  put(ws, {{"TXTYEARmi", "2024"}, {"TXTMONTHMI", "03"}, {"TXTDAYmi", "20"}, {"TXTYEARsh", "1403"},
           {"TXTMONTHSH", "01"}, {"TXTDAYsh", "01"}, {"Text1", "12"}, {"Text48", "32"}, {"Text5", "5"},
           {"Text2", "240"}, {"Text3", "4"}, {"Text4", "8000"}, {"Text6", "3"}, {"Combo1", "CU     1"},
           {"Text7", "600"}, {"Text8", "0"}, {"Combo2", "       0"}, {"Text9", "0"}, {"Text10", "0"},
           {"Combo3", "       0"}, {"Text11", "0"}, {"Text49", "3"}, {"Combo4", "CU     1"}, {"txtmin", "600"},
           {"Text17", "0"}, {"Combo6", "       0"}, {"Text16", "0"}, {"Text23", "0"}, {"Combo9", "       0"},
           {"Text22", "0"}, {"Text27", "25.4"}, {"Text29", "12.1"}, {"Text18", "1012.5"}, {"Text21", "1015.0"},
           {"Text38", "3"}, {"Text25", "1.2"}, {"txtpast6", "0"}, {"Text31", "45.2"}, {"Txttond", "     "},
           {"Txtmaxwind", "     "}, {"Image1", "ww02"}, {"Image2", "W0"}});
}

// The worked example typed into a new report on an entry screen of its own.
struct Example {
  explicit Example(DateTime now = {2024, 3, 20, 5, 40, 0}) : s(now), ws(s.open_entry()) { fill_worked_example(ws); }
  test::Station s;
  Desk& ws;
};

TEST(SynopReport, WholeRunFromTheBoxesToTheLines) {
  Example e;
  Desk& ws = e.ws;
  ws.click(ws.FrmKashf.Cmdsynop);
  FrmCode& p = ws.FrmCode;
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(ws.FrmKashf.txtSYN.text, "32558 52404 10254 20121 30125 40150 53012 60001 83100 333 83820=");
  EXPECT_EQ(ws.SynopLine1, "32558 52404 10254 20121 30125 40150 53012 60001 83100 333");
  EXPECT_EQ(ws.SynopLine2, "83820=");
  EXPECT_EQ(ws.SYNOP_coded, 1);
  EXPECT_TRUE(ws.FrmKashf.Combo7.enabled);
  EXPECT_EQ(p.Text103.text, "045");
  EXPECT_EQ(p.Text34.text, "24004");
  EXPECT_EQ(ws.FrmKashf.TEXTMIN.text, "600");
  const std::string b5 = "     ";
  const std::string line = "24075424032012" "32558" "52404" + b5 + "10254" "20121" "30125" "40150" "53012" "60001" +
                           b5 + "83100" + b5 + "333" + b5 + b5 + b5 + b5 + b5 /* 4a3hhh */ + b5 + b5 + b5 + b5 +
                           "83820" + b5 + b5 + b5 + b5 + "045" + b5 + b5 + "   " + b5 + b5 + b5 + b5 + b5 + b5 +
                           "      " + " ";
  EXPECT_EQ(p.TXTSCDATA.text, line);
  EXPECT_EQ(p.TXTTEDAD.text, "200");
  EXPECT_EQ(p.TXTgolbad.text, "40754240320" "12***24004*******");
  expect_bulletin_file(ws, "worked-example-12utc.txt");
}

TEST(SynopReport, ALongReportBreaksAtTheLastBlankWithin61) {
  Example e;
  Desk& ws = e.ws;
  put(ws, {{"Text1", "15"}, {"Text60", "31.2"}, {"Text59", "12.5"}, {"Text32", "20.4"}, {"Text33", "-"},
           {"TXT_QNT", "91234"}});
  ws.FrmCode.Text85.text = "70222";
  ws.click(ws.FrmKashf.Cmdsynop);
  EXPECT_EQ(ws.FrmKashf.txtSYN.text,
            "32558 52404 10254 20121 30125 40150 53012 70222 83100 333 10312 83820 91234=");
  EXPECT_EQ(ws.SynopLine1, "32558 52404 10254 20121 30125 40150 53012 70222 83100 333");
  EXPECT_EQ(ws.SynopLine2, "10312 83820 91234=");
  EXPECT_EQ(ws.FrmCode.Text84.text, "     ");  // no rain group at 15 with no rain
  EXPECT_EQ(ws.FrmCode.Text41.text, "10204");  // soil, archive line only
  EXPECT_EQ(ws.FrmCode.Text42.text, "     ");
  EXPECT_EQ(ws.FrmCode.Text90.text, "     ");  // the minimum only at 03
  EXPECT_EQ(ws.FrmCode.TXTSCDATA.text.substr(160, 3), "999");
}

TEST(SynopReport, RefusalsAndFailuresStopTheRunWhereTheyStand) {
  struct Case {
    const char* name;
    std::vector<std::pair<const char*, const char*>> values;
    std::string message;
    const char* focus;      // "" when the focus stays on the button
    const char* last_box;   // a box the run reached ("" for none)
    const char* first_left; // a box the run did not reach
  };
  const Case table[] = {
      {"iX 1 without weather", {{"Text48", "31"}}, "FrmERR: " + std::string(kWeatherMissing), "", "", "Text77"},
      {"no cloud amounts", {{"Text6", "0"}, {"Text7", "0"}, {"Combo1", "       0"}, {"Text49", "0"}, {"Combo4", "       0"}, {"txtmin", "0"}},
       "FrmERR: " + std::string(kNoCloudAmounts), "FrmKashf.Text6", "", "Text77"},
      {"empty dew point", {{"Text29", ""}}, "FrmERR: Type mismatch", "", "Text79", "Text80"},
      {"letters in the wind", {{"Text3", "4k"}}, "FrmERR: Type mismatch", "", "", "Text77"},
      {"negative evaporation", {{"Text66", "-1.2"}}, "box: " + std::string(kNegativeEvaporation),
       "FrmKashf.Text66", "Text86", "Text94"},
  };
  for (const Case& c : table) {
    Example e;
    Desk& ws = e.ws;
    for (const auto& [name, text] : c.values) ws.control(name)->text = text;
    // What an earlier run of the coder left.
    ws.FrmKashf.txtSYN.text = "before";
    ws.SynopLine1 = ws.SynopLine2 = "before";
    ws.SYNOP_coded = 1;
    ws.FrmKashf.ZAKHIREH.enabled = true;
    ws.FrmKashf.Frame8.visible = true;  // the pan boxes, shown at 06
    ws.click(ws.FrmKashf.Cmdsynop);
    const auto messages = ws.take_messages();
    ASSERT_FALSE(messages.empty()) << c.name;
    EXPECT_EQ(messages.back(), c.message) << c.name;
    // A run that stops leaves no report behind, not even the one before it.
    EXPECT_EQ(ws.SYNOP_coded, 0) << c.name;
    EXPECT_EQ(ws.SynopLine1 + ws.SynopLine2, "") << c.name;
    EXPECT_FALSE(ws.FrmKashf.ZAKHIREH.enabled) << c.name;
    EXPECT_EQ(ws.FrmKashf.txtSYN.text, "") << c.name;
    if (*c.focus) {
      EXPECT_EQ(ws.focused()->full_name(), c.focus) << c.name;
    }
    if (*c.last_box) {
      EXPECT_NE(ws.FrmCode.find(c.last_box)->text, "     ") << c.name;
    }
    EXPECT_EQ(ws.FrmCode.find(c.first_left)->text, "     ") << c.name;
  }
}

TEST(SynopReport, CloudCheckWhenTheButtonGetsTheFocus) {
  struct Case {
    const char* name;
    std::vector<std::pair<const char*, const char*>> values;
    const char* focus;
    bool emptied;  // the box the check empties and sends the focus to
    bool first_row;
  };
  const Case table[] = {
      {"layer 2 height without amount", {{"Text9", "900"}}, "FrmKashf.Text8", true, true},
      {"middle type without amount", {{"Combo6", "AC     3"}}, "FrmKashf.Text17", true, true},
      {"high amount missing", {{"Text22", "7000"}}, "FrmKashf.Text23", true, true},
      // The height box's own change rule puts its 0 back at once.
      {"layer 3 amount without height", {{"Text10", "2"}, {"Combo3", "SC     4"}}, "FrmKashf.Text11", false, false},
      {"summary without minimum height", {{"txtmin", "0"}}, "FrmKashf.Text49", true, false},
      {"middle amount without height", {{"Text17", "2"}, {"Combo6", "AC     3"}}, "FrmKashf.Text16", true, false},
      {"layer 2 without type", {{"Text8", "2"}, {"Text9", "900"}}, "FrmKashf.Combo2", false, false},
      {"summary without type", {{"Combo4", "       0"}}, "FrmKashf.Combo4", false, false},
      {"high without type", {{"Text23", "1"}, {"Text22", "7000"}}, "FrmKashf.Combo9", false, false},
  };
  for (const Case& c : table) {
    Example e;
    Desk& ws = e.ws;
    for (const auto& [name, text] : c.values) ws.control(name)->text = text;
    ws.take_messages();
    EXPECT_FALSE(synop_cloud_check(ws)) << c.name;
    const auto messages = ws.take_messages();
    ASSERT_GE(messages.size(), 1u) << c.name;
    EXPECT_EQ(messages[0], "FrmERR: " + std::string(c.first_row ? kCloudCheckAmount : kCloudCheck)) << c.name;
    Control* box = ws.control(std::string(c.focus).substr(9));
    if (c.emptied) {
      EXPECT_EQ(box->text, "") << c.name;
    } else {
      EXPECT_NE(box->text, "") << c.name;
    }
  }
  // Through the button: the check runs as it gets the focus, the focus goes to
  // the box, and there is no click.
  {
    Example e;
    Desk& ws = e.ws;
    put(ws, {{"Text9", "900"}});
    ws.FrmKashf.txtSYN.text = "before";
    ws.click(ws.FrmKashf.Cmdsynop);
    EXPECT_EQ(ws.focused()->full_name(), "FrmKashf.Text8");
    EXPECT_EQ(ws.FrmKashf.txtSYN.text, "before");
  }
  // A sky of 9 or 0 is not checked.
  Example e;
  Desk& ws = e.ws;
  put(ws, {{"Text5", "9"}, {"Text9", "900"}});
  ws.click(ws.FrmKashf.Cmdsynop);
  EXPECT_EQ(ws.FrmKashf.txtSYN.text.substr(0, 11), "32/58 92404");
}

TEST(SynopReport, PointerOverTheButtonAsksForTheWeather) {
  Example e;
  Desk& ws = e.ws;
  put(ws, {{"Image1", ""}, {"Image2", ""}});
  ws.FrmOption.Text7.text = "";  // a blank observer is left out
  ws.click(ws.FrmKashf.Cmdsynop);
  EXPECT_EQ(ws.take_messages().size(), 2u);  // no present, no past weather
  EXPECT_EQ(ws.FrmKashf.Cmdsynop.back_color, 0x80FF80);
  EXPECT_EQ(ws.FrmKashf.Command4.back_color, 0xE0E0E0);
  EXPECT_EQ(ws.FrmKashf.Combo7.text, "نام ديدبان كشيك");
  EXPECT_EQ(ws.FrmKashf.Combo7.items, (std::vector<std::string>{"احمد رضايي", "مريم كريمي", "زهرا حسيني"}));
  EXPECT_EQ(ws.FrmKashf.txtSYN.text.substr(0, 5), "32558");  // the click still codes
}

TEST(SynopReport, AReportAfterMidnightTakesTheNextDay) {
  Example e({2024, 2, 28, 23, 40, 0});
  Desk& ws = e.ws;
  put(ws, {{"Text1", "00"}, {"TXTMONTHMI", "02"}, {"TXTDAYmi", "28"}, {"TXTDAYsh", "09"}});
  ws.click(ws.FrmKashf.Cmdsynop);
  EXPECT_EQ(ws.FrmKashf.TXTDAYmi.text, "29");
  EXPECT_EQ(ws.FrmKashf.TXTDAYsh.text, "10");
  EXPECT_EQ(ws.FrmCode.TXTDAYmi.text, "29");
  EXPECT_EQ(ws.FrmCode.TXTSCDATA.text.substr(0, 14), "24075424022900");
  EXPECT_EQ(ws.FrmCode.TXTgolbad.text.substr(0, 13), "4075424022900");
}

// A 12-hour station codes its masked hours with cmdsynop1218; at 15 h on the
// clock the date steps for the 18 and 21 UTC lines, not for 00.
TEST(SynopReport, TwelveHourStationLinesTakeTheDateOfTheClock) {
  const std::pair<const char*, const char*> table[] = {{"18", "21"}, {"21", "21"}, {"00", "20"}};
  for (const auto& [hour, day] : table) {
    Example e({2024, 3, 20, 15, 10, 0});
    Desk& ws = e.ws;
    ws.FrmOption.Combo1.text = std::string(kStation12);
    put(ws, {{"Text1", hour}});
    ws.FrmKashf.ZAKHIREH.enabled = false;
    ws.FrmKashf.cmdsynop1218.visible = true;  // shown for this station at these hours
    ws.click(ws.FrmKashf.cmdsynop1218);
    EXPECT_EQ(ws.FrmCode.TXTSCDATA.text.substr(0, 14), std::string("2407542403") + day + hour) << hour;
    EXPECT_EQ(ws.FrmCode.TXTDAYmi.text, day) << hour;
    EXPECT_TRUE(ws.FrmKashf.ZAKHIREH.enabled) << hour;
    EXPECT_FALSE(ws.FrmKashf.cmdsynop1218.enabled) << hour;
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{}) << hour;
  }
}

// A full 06 UTC report of a 24-hour station, with a CB layer, the ground,
// the pan, the 24-hour rain and the upper-air slot.
TEST(SynopReport, FullSixHourReportWithSections3And5) {
  Example e({2024, 3, 20, 6, 40, 0});
  Desk& ws = e.ws;
  put(ws, {{"Text1", "06"}, {"Text48", "12"}, {"Text5", "7"}, {"Text2", "270"}, {"Text3", "6"}, {"Text4", "12000"},
           {"Text6", "2"}, {"Combo1", "CU     2"}, {"Text7", "800"}, {"Text8", "3"}, {"Combo2", "CB     9"},
           {"Text9", "1200"}, {"Text10", "2"}, {"Combo3", "SC     4"}, {"Text11", "1600"}, {"Text49", "5"},
           {"Combo4", "CB     9"}, {"txtmin", "800"}, {"Text17", "3"}, {"Combo6", "AC     3"}, {"Text16", "3500"},
           {"Text23", "2"}, {"Combo9", "CI     1"}, {"Text22", "8000"}, {"Text27", "8.4"}, {"Text28", "4.2"},
           {"Text29", "-1.6"}, {"Text31", "49.6"}, {"Text18", "881.4"}, {"Text21", "1018.7"}, {"Text24", "1480.4"},
           {"Text38", "2"}, {"Text25", "0.8"}, {"txtpast6", "2.5"}, {"Text53", "4.2"}, {"Text66", "3.4"},
           {"Text68", "-2.5"}, {"Text69", "3"}});
  ws.GroundCode = "1";
  FrmCode& p = ws.FrmCode;
  load_code_panel(ws);
  p.Text85.text = "78082";
  p.Text91.text = "30102";
  p.Text87.text = "90550";
  ws.click(ws.FrmKashf.Cmdsynop);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
  EXPECT_EQ(ws.FrmKashf.txtSYN.text,
            "12562 72706 10084 21016 38814 40187 52008 60031 78082 85931 "
            "333 30102 41003 50340 70042 82826 83940 83361=");
  EXPECT_EQ(ws.SynopLine1, "12562 72706 10084 21016 38814 40187 52008 60031 78082 85931");
  EXPECT_EQ(ws.SynopLine2, "333 30102 41003 50340 70042 82826 83940 83361=");
  EXPECT_EQ(ws.GroundSign, "1");
  EXPECT_EQ(ws.GroundTemp, "03");
  EXPECT_EQ(p.Text93.text, "48480");
  const std::string b = "     ";
  const std::string line = "24075424032006" "12562" "72706" + b + "10084" "21016" "38814" "40187" "52008" "60031"
                           "78082" "85931" "90550" "333" + b + b + "30102" "41003" "48480" "50340" + b + b +
                           "70042" "82826" "83940" "83361" + b + "90042" "050" + b + b + "   " + b + b + b + b + b +
                           b + "      " " ";
  EXPECT_EQ(p.TXTSCDATA.text, line);
  EXPECT_EQ(p.TXTTEDAD.text, "200");
  EXPECT_EQ(p.TXTgolbad.text, "40754240320" "06***27006*******");
  expect_bulletin_file(ws, "full-06utc.txt");
}

}  // namespace
}  // namespace obsdesk
