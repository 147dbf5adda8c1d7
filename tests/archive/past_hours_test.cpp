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

Workstation& open_editor(Station& s) {
  Workstation& ws = s.start();
  ws.click(ws.FrmMain.Command4);
  ws.take_messages();
  return ws;
}

TEST(PastHours, TheCharactersAValueTakes) {
  const std::string sukun = ansi_char(250);
  const std::pair<std::string, bool> table[] = {
      {"", true},      {"12", true},    {"12.5", true},  {".5", true},     {"/", true},
      {"1/2", true},   {"1013", true},  {"1013.2", true}, {"12.3.4", true},  // past the fourth place
      {"12345x", true}, {sukun, true},  {"1" + sukun + "5", true},
      {"-3", false},   {"1-", false},   {"TR", false},   {"1a", false},    {" 12", false},
      {"1..", false},  {".5.", false},  {"12,5", false}, {"+1", false},    {"۱۲", false},
  };
  for (const auto& [text, ok] : table) EXPECT_EQ(past_value_ok(text), ok) << text;
}

TEST(PastHours, TheHourBoxKeepsAMainHourOnly) {
  const std::pair<const char*, const char*> table[] = {
      {"", ""},     {"0", "0"},   {"1", "1"},   {"2", "2"},   {"00", "00"}, {"03", "03"}, {"06", "06"},
      {"09", "09"}, {"12", "12"}, {"15", "15"}, {"18", "18"}, {"21", "21"}, {"24", "00"}, {"13", ""},
      {"3", ""},    {"9", ""},    {"22", ""},   {"123", ""},  {"0a", ""},   {"x", ""},
  };
  for (const auto& [in, out] : table) EXPECT_EQ(past_hour_text(in), out) << in;
}

TEST(PastHours, ABadCharacterIsToldByFamilyAndTypedAgain) {
  const struct {
    const char* box;
    const char* words;
  } table[] = {{"Text1", kTemperature}, {"Text8", kTemperature}, {"Text9", kRain},
               {"Text16", kRain},       {"Text17", kPressure},   {"Text24", kPressure}};
  for (const auto& c : table) {
    Station s;
    Workstation& ws = open_editor(s);
    Control& box = s.at(std::string("FrmWP.") + c.box);
    ws.type(box, "1-");
    EXPECT_EQ(box.text, "") << c.box;
    EXPECT_EQ(ws.focused(), &box) << c.box;
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{c.words}) << c.box;
  }
}

TEST(PastHours, LeavingABadValueIsToldAgain) {
  Station s;
  Workstation& ws = open_editor(s);
  FrmWP& p = ws.FrmWP;
  const struct {
    TextBox* box;
    const char* words;
  } table[] = {{&p.Text3, kData}, {&p.Text12, kRain}, {&p.Text20, kPressure}};
  for (const auto& c : table) {
    ws.focus_now(*c.box);
    c.box->text = "TR";  // put there without a change
    ws.focus_now(p.Text25);
    EXPECT_EQ(c.box->text, "") << c.box->name;
    EXPECT_EQ(ws.focused(), c.box) << c.box->name;
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{c.words}) << c.box->name;
  }
}

TEST(PastHours, EnterWalksTheBoxesToSaveAndTheHourToTheFirst) {
  Station s;
  Workstation& ws = open_editor(s);
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
  Workstation& ws = *s.ws;
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
  // The start screen shows the row the next report restores.
  EXPECT_EQ(ws.FrmMain.txt00TB.text, "12.5");
  EXPECT_EQ(ws.FrmMain.txt12TB.text, "21");
  EXPECT_EQ(ws.FrmMain.txtrain12b.text, "3.2");
  EXPECT_EQ(ws.FrmMain.txtp06qfeb.text, "879.6");
  EXPECT_EQ(ws.FrmMain.txtutcpastb.text, "00");
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
