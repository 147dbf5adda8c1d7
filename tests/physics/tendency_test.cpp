// The pressure tendency dialog: the traces that fit, a choice by picture or by
// digit, the amount from QFE and the pressure of three hours before.
#include "checks/tendency.h"

#include <gtest/gtest.h>

#include "screens/record.h"
#include "screens/handoffs.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

constexpr const char* kTypeAmount = "FrmERR: مــقدار تغييرات فـشــار را وارد نمـائيـــد";

// The entry screen of a SYNOP past the barometer, the dialog opened at one
// hour. Every past pressure but the one of three hours before holds a decoy.
struct Dialog {
  Dialog() : ws(s.open_entry()), k(ws.FrmKashf), d(ws.FrmNTF) {
    k.Combo5.text = std::string(kSynop);
    for (Control* c : Controls{&k.Text25, &k.Text38}) c->visible = true;
    k.Frameh4.visible = false;
  }
  Dialog(const std::string& hour, const std::string& qfe, const std::string& before) : Dialog() {
    open(hour, qfe, before);
  }
  void open(const std::string& hour, const std::string& qfe, const std::string& before) {
    ws.focus_now(k.Text38);
    k.Text1.text = hour;
    k.Text18.text = qfe;
    k.Text25.text = "";
    k.Text38.text = "";
    const std::size_t now = static_cast<std::size_t>(main_hour_index(std::stoi(hour)));
    for (std::size_t i = 0; i < 8; ++i) ws.FrmMain.qfe[i]->text = "900";
    ws.FrmMain.qfe[(now + 7) % 8]->text = before;
    open_tendency_dialog(ws);
    ws.focus_now(d.Text1);
    ws.take_messages();
  }
  std::string marks() const {
    std::string out;
    for (std::size_t a = 0; a < 9; ++a)
      if (d.marker[a]->visible) out += std::to_string(a);
    return out;
  }
  test::Station s;
  Desk& ws;
  FrmKashf& k;
  FrmNTF& d;
};

TEST(Tendency, ChoicesAtEachHour) {
  struct Case {
    const char* name;
    const char* qfe;
    const char* before;
    const char* marks;
    int choice;
    bool by_digit;
    const char* amount;
    bool message;
  };
  const Case cases[] = {
      {"rise", "871.4", "870.1", "0123", 2, false, "1.3", false},
      {"fall", "870.1", "871.4", "5678", 7, true, "1.3", false},
      {"fall, steady", "1012.05", "1013", "5678", 4, false, "0", false},
      {"no change, 0", "871.4", "871.4", "045", 0, true, "0", false},
      {"missing", "871.4", "", "0123", 1, false, "", true},
      {"no QFE", "", "871.4", "5678", 6, false, "", false},
  };
  Dialog t;
  for (const char* hour : {"00", "03", "06", "09", "12", "15", "18", "21"}) {
    for (const Case& c : cases) {
      t.open(hour, c.qfe, c.before);
      const std::string where = std::string(hour) + " " + c.name;
      ASSERT_TRUE(t.d.visible) << where;
      EXPECT_EQ(t.ws.focused(), &t.d.Text1) << where;
      EXPECT_EQ(t.marks(), c.marks) << where;
      if (c.by_digit) {
        t.ws.type(t.d.Text1, std::to_string(c.choice));
      } else {
        t.ws.click(*t.d.trace[static_cast<std::size_t>(c.choice)]);
      }
      EXPECT_EQ(t.k.Text38.text, std::to_string(c.choice)) << where;
      EXPECT_EQ(t.k.Text25.text, c.amount) << where;
      const auto messages = t.ws.take_messages();
      EXPECT_EQ(messages, c.message ? std::vector<std::string>{kTypeAmount} : std::vector<std::string>{}) << where;
      EXPECT_FALSE(t.d.visible) << where;
      EXPECT_EQ(t.ws.focused(), &t.k.Text25) << where;
    }
  }
}

// Enter and letters choose nothing; cancelling leaves the
// amount empty and keeps no marks for the next opening.
TEST(Tendency, DialogCancelledChoosesNothing) {
  Dialog t("06", "871.4", "870.1");
  t.ws.press_enter();
  for (const char* key : {"x", "ب"}) t.ws.type(t.d.Text1, key);
  EXPECT_TRUE(t.d.visible);
  EXPECT_EQ(t.k.Text38.text, "");

  t.ws.click(t.d.Command1);
  EXPECT_FALSE(t.d.visible);
  EXPECT_EQ(t.ws.focused(), &t.k.Text74);
  EXPECT_EQ(t.k.Text25.text, "");
  EXPECT_EQ(t.marks(), "");
}

TEST(Tendency, AKnownAmountLetsTheDialogGoBehind) {
  Dialog t("12", "871.4", "870.1");
  t.k.Text25.text = "1.3";
  t.ws.focus_now(t.k.Text27);
  EXPECT_EQ(t.ws.active_screen(), &t.k);
  EXPECT_TRUE(t.d.visible);
}

}  // namespace
}  // namespace obsdesk
