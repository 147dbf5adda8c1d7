// The rain boxes: what a reading may be, the rain table of the day, the sums
// it gives by hour, and where Enter goes; the tendency boxes Text38 and Text25.
#include "checks/rain.h"

#include <gtest/gtest.h>

#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

constexpr const char* kRainCheck = "FrmERR: مــقدار بارندگي را چــك نمـائيـــد";

// The entry screen of a SYNOP with the rain frame open, put at one hour. The
// hour, the kind and the groups are put in place directly, so that only the
// rules of the rain boxes run.
struct Entry {
  Entry() : ws(s.open_entry()), k(ws.FrmKashf) {
    k.Combo5.text = std::string(kSynop);
    for (Control* c : Controls{&k.Frame6, &k.Text50, &k.txtpast6, &k.Text51, &k.Text53, &k.Text25, &k.Text38})
      c->visible = true;
    for (Control* m : Controls{&k.Frameh1, &k.Frameh2, &k.Frameh3, &k.Frameh4}) m->visible = false;
  }
  explicit Entry(const std::string& hour, const std::string& irix = "1") : Entry() { at(hour, irix); }
  // A fresh start at the hour: a zero table and empty boxes.
  void at(const std::string& hour, const std::string& irix = "1") {
    for (Control* c : Controls{&k.Text50, &k.Text42}) c->text = "0";
    ws.focus_now(k.Text38);
    k.Text1.text = hour;
    k.Text48.text = irix;
    for (Control* c : Controls{&k.Text5, &k.Text50, &k.Text42, &k.txtpast6, &k.Text51, &k.Text53, &k.Text25})
      c->text = "";
    for (TextBox* r : ws.FrmMain.rain) r->text = "0";
    ws.take_messages();
  }
  void table(const RainTable& t) {
    for (std::size_t i = 0; i < t.size(); ++i) ws.FrmMain.rain[i]->text = t[i];
  }
  // Types a reading and leaves the box.
  void leave(Control& box, const std::string& text) {
    ws.type(box, text);
    ws.focus_now(k.Text38);
  }
  test::Station s;
  Desk& ws;
  FrmKashf& k;
};

std::string joined(const std::vector<std::string>& lines) {
  std::string out;
  for (const std::string& l : lines) out += l + "\n";
  return out;
}

TEST(Rain, SumsByHour) {
  struct Row {
    const char* hour;
    RainTable table;  // 00 03 06 09 12 15 18 21, before the reading
    const char* typed;
    const char* past6;  // "" where the hour forms no sum
    const char* total;  // Text51
    const char* day06;  // Text53
    const char* shown;  // the box afterwards
  };
  const Row rows[] = {
      // 18: 15 + 18; a trace only with traces, a missing reading on either side
      {"18", {"0", "0", "0", "0", "0", "TR", "0", "0"}, "t", "TR", "", "", "TR"},
      {"18", {"0", "0", "0", "0", "0", "0.5", "0", "0"}, "t", "0.5", "", "", "TR"},
      {"18", {"0", "0", "0", "0", "0", "/", "0", "0"}, "2", "/", "", "", "2"},
      {"18", {"0", "0", "0", "0", "0", "3", "0", "0"}, "/", "/", "", "", "/"},
      // 12: 09 + 12, summed in tenths; an empty or bare point reading is 0
      {"12", {"0", "0", "0", "0.1", "0", "0", "0", "0"}, "0.2", "0.3", "", "", "0.2"},
      {"12", {"9", "0", "0", "1.5", "0", "0", "0", "0"}, ".", "1.5", "", "", "0"},
      // 06: 03 + 06, and the day 09 ... 06
      {"06", {"2", "0.2", "0", "1", "0", "TR", "0", "0"}, "0.3", "0.5", "", "3.5", "0.3"},
      {"06", {"0", "0", "0", "0", "0", "TR", "0", "0"}, "0", "0", "", "TR", "0"},
      {"6", {"0", "1", "0", "0", "0", "0", "0", "/"}, "1", "2", "", "/", "1"},
      // 00: 21 + 00, and the day 03 ... 00
      {"00", {"0", "TR", "TR", "0", "0", "0", "0", "0.2"}, "t", "0.2", "0.2", "", "TR"},
      {"00", {"0", "1", "0", "0", "2", "0", "0", "0.4"}, ".6", "1", "4", "", "0.6"},
      // the hours between: the reading is kept and nothing is added up
      {"09", {"0", "0", "0", "0", "0", "0", "0", "/"}, "t", "", "", "", "TR"},
  };
  Entry e;
  for (const Row& r : rows) {
    e.at(r.hour);
    e.table(r.table);
    e.leave(e.k.Text50, r.typed);
    SCOPED_TRACE(std::string(r.hour) + " typed \"" + r.typed + "\"");
    EXPECT_EQ(e.k.Text50.text, r.shown);
    EXPECT_EQ(e.k.txtpast6.text, r.past6);
    EXPECT_EQ(e.k.Text51.text, r.total);
    EXPECT_EQ(e.k.Text53.text, r.day06);
    const std::string typed = r.typed;
    const std::string kept = typed == "." ? "0" : typed == "t" ? "TR" : typed;
    EXPECT_EQ(e.ws.FrmMain.rain[static_cast<std::size_t>(main_hour_index(std::stoi(r.hour)))]->text, kept);
    EXPECT_EQ(joined(e.ws.take_messages()), "");
  }
}

// A 12-hour station has no readings in the night: at 06 the reading of 15 of
// the day before goes into the six-hour sum, through Text42 only.
TEST(Rain, TwelveHourStationAddsTheNightAt06) {
  for (auto [twelve_hour, text42, past6] : {std::tuple{true, true, "1.5"}, {true, false, "0.5"}, {false, true, "0.5"}}) {
    Entry e("06");
    if (twelve_hour) e.ws.FrmOption.Combo1.text = std::string(kStation12);
    e.k.Text42.visible = text42;
    e.k.Text50.visible = !text42;
    e.table({"0", "0", "0", "0", "0", "1", "0", "0"});
    e.leave(text42 ? static_cast<Control&>(e.k.Text42) : e.k.Text50, "0.5");
    EXPECT_EQ(e.k.txtpast6.text, past6) << twelve_hour << text42;
  }
}

// A text that is no rain is refused as it changes: the box is emptied and
// keeps the focus, and the table is not touched. The sums keep the same rule.
TEST(Rain, RefusesTextsThatAreNoRain) {
  Entry e;
  for (const char* bad : {"TRR", "-1", "۱", "/5", "1,5"}) {
    e.at("09");
    e.ws.FrmMain.txtrain09.text = "7";
    e.ws.focus_now(e.k.Text38);
    e.ws.set_text(e.k.Text50, bad);
    EXPECT_EQ(joined(e.ws.take_messages()), std::string(kRainCheck) + "\n") << bad;
    EXPECT_EQ(e.k.Text50.text, "") << bad;
    EXPECT_EQ(e.ws.focused(), &e.k.Text50) << bad;
    EXPECT_EQ(e.ws.FrmMain.txtrain09.text, "7") << bad;
    e.ws.set_text(e.k.txtpast6, bad);
    EXPECT_EQ(e.k.txtpast6.text, "") << bad;
  }
}

// On leaving: iR and the station's limits.
TEST(Rain, LeavingChecksIrAndLimits) {
  struct Row {
    const char* hour;
    const char* irix;
    const char* typed;
    bool answer;           // to the soft limit's question
    const char* messages;  // joined
    bool refused;
  };
  const std::string confirm = "? آيا مــقدار بارندگي را تائيد مي نمـائيـــد ؟";
  const std::string check = std::string(kRainCheck) + "\n";
  const std::string no = confirm + " -> no\n", yes = confirm + " -> yes\n";
  const Row rows[] = {
      // iR other than 1: no rain at the main hours, a nil reading stands
      {"12", "3", "t", true, check.c_str(), true},
      {"18", "", "0.5", true, check.c_str(), true},
      {"12", "3", "0", true, "", false},
      {"09", "3", "2.0", true, "", false},
      // limits 30 (asked) and 100 (refused)
      {"09", "1", "101", true, check.c_str(), true},
      {"09", "1", "100", true, yes.c_str(), false},
      {"09", "1", "45", false, no.c_str(), true},
      {"09", "1", "30", true, "", false},
  };
  Entry e;
  for (const Row& r : rows) {
    e.at(r.hour, r.irix);
    const std::size_t slot = static_cast<std::size_t>(main_hour_index(std::stoi(r.hour)));
    e.ws.FrmMain.rain[slot]->text = "7";
    if (!r.answer) e.s.asker.queue(false);  // unqueued questions are answered yes
    e.leave(e.k.Text50, r.typed);
    SCOPED_TRACE(std::string(r.hour) + " iR " + r.irix + " \"" + r.typed + "\"");
    EXPECT_EQ(joined(e.ws.take_messages()), r.messages);
    const std::string kept = std::string(r.typed) == "t" ? "TR" : r.typed;
    EXPECT_EQ(e.k.Text50.text, r.refused ? "" : kept);
    EXPECT_EQ(e.ws.FrmMain.rain[slot]->text, r.refused ? "7" : kept);
    EXPECT_EQ(e.ws.focused(), r.refused ? &e.k.Text50 : &e.k.Text38);
  }
}

TEST(Rain, EnterLeavesTheRainBoxByHour) {
  struct Row {
    const char* hour;
    const char* rain_to;
    const char* pressure_to;  // from Text18
  };
  const Row rows[] = {
      {"00", "Text74", "Text74"},     {"03", "Text32", "Text74"},     {"06", "Text68", "Text74"},
      {"18", "Text71", "Txttimesun"}, {"21", "Txtmaxwind", "Txtmaxwind"},
  };
  Entry e;
  for (const Row& r : rows) {
    e.at(r.hour);
    for (Control* c : Controls{&e.k.Frame5, &e.k.Frame9, &e.k.Frame10, &e.k.Txtmaxwind, &e.k.Txttimesun})
      c->visible = true;
    e.ws.type(e.k.Text50, "0");
    e.ws.press_enter();
    ASSERT_NE(e.ws.focused(), nullptr);
    EXPECT_EQ(e.ws.focused()->name, r.rain_to) << r.hour;
    e.ws.focus_now(e.k.Text18);
    e.ws.press_enter();
    EXPECT_EQ(e.ws.focused()->name, r.pressure_to) << r.hour;
  }
}

TEST(Tendency, AmountBox) {
  const std::string ask = "? آيا مــقدار تـغييـرات را تائيد مينمائيد ؟";
  const std::string check = "FrmERR: مــقدار تغييرات فشـار را چــك نمـائيـــد\n";
  struct Row {
    const char* typed;
    bool answer;
    const char* left;  // the text after leaving
    std::string messages;
    bool kept;  // the focus stays in Text25
  };
  const Row rows[] = {
      {"1.3", true, "1.3", "", false},
      {"5", true, "5", "", false},
      {"20", true, "20", ask + " -> yes\n", false},
      {"1..", true, "", check, false},
      {"20.5", true, "", "FrmERR: مــقدار تـغييـرات خارج از حد قابل قبول ميباشد\n", true},
      {"6", false, "", ask + " -> no\n", true},
  };
  Entry e;
  for (const Row& r : rows) {
    e.at("09");
    if (!r.answer) e.s.asker.queue(false);  // unqueued questions are answered yes
    e.ws.type(e.k.Text25, r.typed);
    e.ws.focus_now(e.k.Text38);
    EXPECT_EQ(e.k.Text25.text, r.left) << r.typed;
    EXPECT_EQ(joined(e.ws.take_messages()), r.messages) << r.typed;
    EXPECT_EQ(e.ws.focused(), r.kept ? &e.k.Text25 : &e.k.Text38) << r.typed;
  }
}

// Characteristic 4 is no change, however it is set.
TEST(Tendency, CharacteristicFourMeansNoChange) {
  Entry e("09");
  e.k.Text25.text = "1.3";
  e.ws.set_text(e.k.Text38, "4");
  EXPECT_EQ(e.k.Text25.text, "0");
}

TEST(Tendency, EnterInTheAmountByCloudAndHour) {
  struct Row {
    const char* hour;
    const char* cloud;
    const char* amount;
    const char* to;  // "" : the rainfall rule of the cloud block decides
  };
  const Row rows[] = {
      {"09", "TR", "1.3", "Text6"}, {"09", "", "1.3", "Text6"}, {"03", "0", "1.3", "Text59"},
      {"15", "9", "1.3", "Text59"}, {"09", "0", "", "Text25"},
  };
  Entry e;
  for (const Row& r : rows) {
    e.at(r.hour);
    e.k.Frame15.visible = true;
    e.k.Text5.text = r.cloud;
    e.k.Text25.text = r.amount;
    e.ws.focus_now(e.k.Text25);
    e.ws.press_enter();
    EXPECT_EQ(e.ws.focused()->name, r.to) << r.hour << " N " << r.cloud;
  }
}

}  // namespace
}  // namespace obsdesk
