// The METAR and SPECI coders run through the entry screen: a filled observation,
// a click on the coder button, then the code panel, the report text and the lines.
#include <gtest/gtest.h>

#include "coders/syntax_gate.h"

#include <string>
#include <utility>
#include <vector>

#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using Fields = std::vector<std::pair<std::string, std::string>>;

// The observation of the worked example: day 7, 12 UTC, one layer of CU at 600 m.
const Fields kExample = {
    {"TXTDAYmi", "07"},     {"TXTMONTHMI", "03"},   {"TXTYEARmi", "2024"},   {"Text1", "12"},
    {"Text2", "240"},       {"Text3", "4"},         {"Text4", "8000"},       {"Text5", "3"},
    {"Text6", "3"},         {"Combo1", "CU     1"}, {"Text7", "600"},        {"Text8", "0"},
    {"Combo2", "       0"}, {"Text9", "0"},         {"Text10", "0"},         {"Combo3", "       0"},
    {"Text11", "0"},        {"Text17", "0"},        {"Combo6", "       0"},  {"Text16", "0"},
    {"Text23", "0"},        {"Combo9", "       0"}, {"Text22", "0"},         {"Text27", "25.4"},
    {"Text29", "12.1"},     {"Text19", "1015.2"},   {"Image10", "sky_bc"}, {"FrmDisplayKashf.TXTWW1", " bc"},
};

struct Entry {
  test::Station s;
  Desk& ws;
  explicit Entry(std::string_view kind, const Fields& changes = {}) : ws(s.open_entry()) {
    ws.focus_now(ws.FrmKashf.Combo5);
    ws.choose(ws.FrmKashf.Combo5, kind);
    for (const auto& [name, value] : kExample) ws.set_text(s.at(name), value);
    for (const auto& [name, value] : changes) ws.set_text(s.at(name), value);
    ws.take_messages();
  }
  std::string operator[](const std::string& name) { return s.at(name).text; }
  std::vector<std::string> click(Control& c) {
    ws.click(c);
    return ws.take_messages();
  }
};

// The scenarios hold the worked example's text; here what the coding opens
// and keeps beside it.
TEST(MetarCoder, CodingOpensTheObserverAndKeepsTheLowestCloud) {
  Entry e(kMetar);
  e.ws.FrmKashf.Combo7.enabled = false;  // as the entry rules leave it before a report is coded
  EXPECT_TRUE(e.click(e.ws.FrmKashf.Command4).empty());
  EXPECT_EQ(e.ws.METAR_coded, 1);
  EXPECT_TRUE(e.ws.FrmKashf.Combo7.enabled);
  EXPECT_EQ(e["TEXTMIN"], "600");
}

TEST(SpeciCoder, SplitsIntoItsOwnLines) {
  Entry e(kSpeci, {{"Text5", "6"}, {"txt1", "7"}, {"Text2", "240"}, {"Text3", "10"}, {"TXTGUSTY", "15"}, {"Text40", "200"},
                   {"Text39", "280"}, {"Text6", "2"}, {"Text8", "3"}, {"Combo2", "SC     4"}, {"Text9", "900"},
                   {"Text10", "5"}, {"Combo3", "SC     5"}, {"Text11", "1200"}, {"Text20", "29.97"}});
  e.click(e.ws.FrmKashf.Command8);
  EXPECT_EQ(e["TXTSPE"], "070007Z 24019G29KT 200V280 8000 FEW020 SCT030 BKN040 25/12 Q1015=");
  EXPECT_EQ(e.ws.SpeciLine1, "070007Z 24019G29KT 200V280 8000 FEW020 SCT030");
  EXPECT_EQ(e.ws.SpeciLine2, "BKN040 25/12 Q1015=");
  EXPECT_EQ(e["FrmCode.Text30"], "A2997");
  EXPECT_EQ(e.ws.SPECI_coded, 1);
  EXPECT_EQ(e.ws.METAR_coded, 0);
}

TEST(SpeciCoder, KeepsGroupsOfAnEarlierReportAndDoesNotMerge) {
  Entry e(kSpeci, {{"txt1", "1234"}, {"Text6", "2"}, {"Combo1", "CB     3"}, {"Text8", "3"}, {"Combo2", "CB     9"},
                   {"Text9", "600"}, {"Text27", ""}, {"Text29", ""}, {"FrmCode.Text55", "VV005"},
                   {"FrmCode.Text61", "10/05"}});
  const auto messages = e.click(e.ws.FrmKashf.Command8);
  EXPECT_TRUE(messages.empty());
  EXPECT_EQ(e["FrmCode.Text56"], "FEW020CB");
  EXPECT_EQ(e["FrmCode.Text57"], "SCT020CB");
  EXPECT_EQ(e["TXTSPE"], "071234Z 24008KT 8000 VV005 FEW020CB SCT020CB 10/05 Q1015=");
}

TEST(MetarCoder, SkyGroups) {
  const struct {
    const char* name;
    Fields changes;
    const char* text;
  } table[] = {
      {"CAVOK above the obstacles", {{"Text7", "1800"}, {"Text4", "12000"}, {"Text2", "CALM"}},
       " 00000KT CAVOK 25/12 Q1015="},
      {"SKC below 10 km", {{"Text5", "0"}, {"Text6", "0"}, {"Combo1", "       0"}, {"Text7", "0"}, {"Text4", "9999"},
                           {"CMbMAX", "NE"}},
       " 24008KT 9000NE SKC 25/12 Q1015="},
      {"NSC above the obstacles", {{"Text7", "1800"}}, " 24008KT 8000 NSC 25/12 Q1015="},
      {"TCU keeps the cloud groups", {{"Text7", "1800"}, {"Combo1", "CU     2"}, {"Text4", "12000"}},
       " 24008KT 9999 SCT060TCU 25/12 Q1015="},
      {"sky obscured", {{"Text5", "9"}, {"Text6", "0"}, {"Combo1", "       0"}, {"Text7", "0"}, {"Text12", "90"},
                        {"Text4", "400"}, {"TxtVM", "350"}, {"CMbMAX", "N"}, {"Text26", "5500"}, {"CMbMIN", "W"}},
       " 24008KT 0350N 5000W VV003 25/12 Q1015="},
  };
  for (const auto& row : table) {
    Entry e(kMetar, row.changes);
    const auto messages = e.click(e.ws.FrmKashf.Command4);
    EXPECT_EQ(e["TXTMET"], row.text) << row.name;
    EXPECT_TRUE(messages.empty()) << row.name << ": " << (messages.empty() ? "" : messages.front());
  }
}

TEST(MetarCoder, ConvectiveLayersAtOneHeightMergeWithAWordOnTooMuchCloud) {
  Entry e(kMetar, {{"Text5", "8"}, {"Text6", "5"}, {"Combo1", "CB     3"}, {"Text8", "4"}, {"Combo2", "CB     9"},
                   {"Text9", "600"}, {"Text10", "7"}, {"Combo3", "SC     5"}, {"Text11", "1200"}});
  const auto messages = e.click(e.ws.FrmKashf.Command4);
  ASSERT_EQ(messages.size(), 2u);
  EXPECT_EQ(messages[0], "box: مجموع ابر هاي دو لايه بيش ار 8/8 ميباشد");
  // Two layers above 8 oktas leave the merged group with no cover: the panel
  // shows it, but the report is not coded with it.
  EXPECT_EQ(e["FrmCode.Text56"], "020CB");
  EXPECT_EQ(messages[1], "FrmERR: " + gate_message({"020CB"}));
  EXPECT_EQ(e["TXTMET"], "");
  EXPECT_EQ(e.ws.METAR_coded, 0);
}

TEST(MetarCoder, RefusalsEndTheRun) {
  const struct {
    const char* name;
    Fields changes;
    const char* words;
    const char* focus;  // "" when the focus is not moved
  } table[] = {
      {"no cloud amount", {{"Text6", "0"}, {"Combo1", "       0"}, {"Text7", "0"}}, "FrmERR: لطفا وضعيت ابر ناكي را مشخص نمـائيـــد",
       "FrmKashf.Text6"},
      {"dew point no number", {{"Text29", "1.2.3"}}, "FrmERR: Type mismatch: temperature = \"1.2.3\"", ""},
      {"speed no number", {{"Text3", ""}}, "FrmERR: Type mismatch: FF = \"\"", ""},
      {"hour missing", {{"Text1", ""}}, "FrmERR: Type mismatch: UTC = \"\"", ""},
      {"QNH too large", {{"Text19", "1E999"}}, "FrmERR: Overflow: QNH = \"1E999\"", ""},
  };
  for (const auto& row : table) {
    Entry e(kMetar, row.changes);
    const auto messages = e.click(e.ws.FrmKashf.Command4);
    ASSERT_FALSE(messages.empty()) << row.name;
    EXPECT_EQ(messages.back(), row.words) << row.name;
    EXPECT_EQ(e["TXTMET"], "") << row.name;
    if (*row.focus) {
      EXPECT_EQ(e.ws.focused()->full_name(), row.focus) << row.name;
    }
  }
}

TEST(MetarCoder, FocusChecksBeforeTheClick) {
  const struct {
    const char* name;
    Fields changes;
    const char* words;
    const char* focus;
    bool coded;
  } table[] = {
      {"the same weather twice", {{"Image8", "sky_bc"}, {"LabVC", "None"}},
       "FrmERR: هر دو هواي فعلي انتخابي يكسان ميباشد", "FrmKashf.Text74", false},
      {"a layer without amount", {{"Text8", "0"}, {"Combo2", "SC     4"}},
       "FrmERR: مــقدار ، نــوع و يا ارتفاع ابــر  را چــك نمـائيـــد", "FrmKashf.Text8", false},
      {"a layer without height", {{"Text8", "2"}, {"Combo2", "SC     4"}},
       "FrmERR: مــقدار ، نــوع و يا ارتفاع ابــر را چــك نمـائيـــد", "FrmKashf.Text9", false},
      {"a layer without type", {{"Text8", "2"}, {"Text9", "900"}},
       "FrmERR: مــقدار ، نــوع و يا ارتفاع ابــر را چــك نمـائيـــد", "FrmKashf.Combo2", false},
      // told, but the click goes on
      {"no weather chosen", {{"Image10", ""}, {"FrmDisplayKashf.TXTWW1", ""}}, "FrmERR: لطفاهواي حاضر انتخاب گردد",
       "FrmKashf.Command4", true},
  };
  for (const auto& row : table) {
    Entry e(kMetar, row.changes);
    const auto messages = e.click(e.ws.FrmKashf.Command4);
    ASSERT_FALSE(messages.empty()) << row.name;
    EXPECT_EQ(messages.front(), row.words) << row.name;
    EXPECT_EQ(e.ws.focused()->full_name(), row.focus) << row.name;
    EXPECT_EQ(e.ws.METAR_coded, row.coded ? 1 : 0) << row.name;
  }
}

}  // namespace
}  // namespace obsdesk
