// The past hours editor: the characters its boxes take, the hour box, the Enter
// walk and the save that the next report reads.
#include "archive/past_hours.h"

#include <gtest/gtest.h>

#include "bank/bank.h"
#include "bank/sqlite.h"
#include "core/textnum.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using test::Station;

const char* kTemperature = "FrmERR:      مــقدار دما را چــك نمـائيـــد";
const char* kData = "FrmERR:      مــقدار داده را چــك نمـائيـــد";
const char* kRain = "FrmERR:      مــقدار بارندگي را چــك نمـائيـــد";
const char* kPressure = "FrmERR:      مــقدار فشار را چــك نمـائيـــد";

std::filesystem::path past_db(const Station& s) {
  return resolve_bank_path(s.root(), "VARDOK\\bank\\access\\PAST.mdb");
}

void set_past(const Station& s, const std::string& column, const std::string& value) {
  Database db(past_db(s), Database::Mode::ReadWrite);
  db.prepare("UPDATE Past SET \"" + column + "\"=?").bind(1, value).run();
}

std::string past(const Station& s, const std::string& column) {
  Database db(past_db(s), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT \"" + column + "\" FROM Past");
  return st.step() ? st.text(0) : "<no row>";
}

Desk& open_editor(Station& s) {
  Desk& ws = s.start();
  ws.click(ws.FrmMain.Command4);
  ws.take_messages();
  return ws;
}

TEST(PastHours, TheCharactersAValueTakes) {
  const std::string sukun = ansi_char(250);
  const std::pair<std::string, bool> table[] = {
      {"", true},      {"12.5", true},  {".5", true},   {"/", true},    {"1/2", true},
      {"12.3.4", true}, {"12345x", true}, {sukun, true},  // past the fourth place anything goes
      {"-3", false},   {"TR", false},   {" 12", false}, {"1..", false}, {"12,5", false}, {"+1", false}, {"۱۲", false},
  };
  for (const auto& [text, ok] : table) EXPECT_EQ(past_value_ok(text), ok) << text;
}

TEST(PastHours, TheHourBoxKeepsAMainHourOnly) {
  const std::pair<const char*, const char*> table[] = {
      {"", ""},   {"0", "0"}, {"2", "2"}, {"00", "00"}, {"21", "21"}, {"24", "00"},
      {"13", ""}, {"3", ""},  {"22", ""}, {"123", ""},  {"x", ""},
  };
  for (const auto& [in, out] : table) EXPECT_EQ(past_hour_text(in), out) << in;
}

// A bad value is told in the words of its box's family, emptied and typed
// again, whether it is typed or left in the box.
TEST(PastHours, ABadValueIsToldByFamilyAndTypedAgain) {
  const struct {
    const char* box;
    bool typed;
    const char* words;
  } table[] = {{"Text8", true, kTemperature}, {"Text9", true, kRain},      {"Text16", true, kRain},
               {"Text17", true, kPressure},   {"Text24", true, kPressure},  // each family's ends
               {"Text3", false, kData},       {"Text12", false, kRain},     {"Text20", false, kPressure}};
  for (const auto& c : table) {
    Station s;
    Desk& ws = open_editor(s);
    Control& box = s.at(std::string("FrmWP.") + c.box);
    if (c.typed) {
      ws.type(box, "1-");
    } else {
      ws.focus_now(box);
      box.text = "TR";  // put there without a change
      ws.focus_now(ws.FrmWP.Text25);
    }
    EXPECT_EQ(box.text, "") << c.box;
    EXPECT_EQ(ws.focused(), &box) << c.box;
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{c.words}) << c.box;
  }
}

TEST(PastHours, EnterWalksTheBoxesToSaveAndTheHourToTheFirst) {
  Station s;
  Desk& ws = open_editor(s);
  FrmWP& p = ws.FrmWP;
  ws.focus_now(p.Text1);
  for (int i = 2; i <= 24; ++i) {
    ws.press_enter();
    ASSERT_EQ(ws.focused()->name, "Text" + std::to_string(i));
  }
  ws.press_enter();
  EXPECT_EQ(ws.focused(), &p.Command1);
  ws.focus_now(p.Text25);
  ws.press_enter();
  EXPECT_EQ(ws.focused(), &p.Text1);
}

TEST(PastHours, SaveExitWritesTheRowForTheNextReport) {
  Station s;
  s.start();
  set_past(s, "T00", "11.5");
  set_past(s, "QFE06B", "880.1");
  Desk& ws = *s.ws;
  ws.click(ws.FrmMain.Command4);
  FrmWP& p = ws.FrmWP;
  EXPECT_EQ(ws.active_screen(), &p);
  EXPECT_EQ(p.Text1.text, "11.5");
  EXPECT_EQ(p.Text19.text, "880.1");
  ws.type(p.Text1, "12.5");
  EXPECT_EQ(p.Txt.text, "11.5");  // the value before
  ws.type(p.Text5, "21");
  ws.type(p.Text13, "3.2");
  ws.type(p.Text19, "879.6");
  ws.type(p.Text25, "24");
  EXPECT_EQ(p.Text25.text, "00");
  ws.take_messages();
  ws.click(p.Command1);
  EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"FrmERR:  تغييرات ثبت شد لطفا برنامه را مجددا اجرا نمائيد"});
  EXPECT_FALSE(p.loaded);
  EXPECT_EQ(ws.active_screen(), &ws.FrmMain);
  const std::pair<const char*, const char*> stored[] = {
      {"T00", "12.5"}, {"T12", "21"}, {"RAIN12", "3.2"}, {"QFE06B", "879.6"}, {"utcpastb", "00"}, {"T03", ""}};
  for (const auto& [column, value] : stored) EXPECT_EQ(past(s, column), value) << column;
}

// A negative temperature in the row is refused as soon as the editor shows it:
// this editor takes no minus sign, and that limit stays.
TEST(PastHours, ANegativeTemperatureInTheRowIsRefusedOnOpening) {
  Station s;
  s.start();
  set_past(s, "T21", "-4.5");
  s.ws->click(s.ws->FrmMain.Command4);
  EXPECT_EQ(s.ws->FrmWP.Text8.text, "");
  EXPECT_EQ(s.ws->take_messages(), std::vector<std::string>{kTemperature});
}

}  // namespace
}  // namespace obsdesk
