// The date groups of the entry screen: a key in one group converts the date into
// the other, with the clearing tests of each side.
#include "calendar/date_boxes.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace obsdesk {
namespace {

struct Dates {
  std::string year, month, day;
};

void put(Control& y, Control& m, Control& d, const Dates& v) {
  y.text = v.year;
  m.text = v.month;
  d.text = v.day;
}

void expect_shown(const Control& y, const Control& m, const Control& d, const Dates& want, const Dates& typed) {
  SCOPED_TRACE(typed.year + "/" + typed.month + "/" + typed.day);
  EXPECT_EQ(y.text, want.year);
  EXPECT_EQ(m.text, want.month);
  EXPECT_EQ(d.text, want.day);
}

TEST(DateBoxes, AGregorianKeyFillsThePersianGroup) {
  const struct {
    Dates in;
    bool key_in_day;
    Dates out;  // year, month, day of the Persian boxes
  } table[] = {
      {{"2024", "Mar", "20"}, false, {"1403", "01", "01"}},  // a month name counts
      {{"2024", "02", "29"}, false, {"1402", "12", "10"}},   // a leap year, from the month or year box
      {{"2024", "02", "29"}, true, {"", "", ""}},            // from the day box: cleared in every year
      {{"2023", "02", "29"}, false, {"", "", ""}},
      {{"2023", "11", "31"}, true, {"", "", ""}},
      {{"2023", "05", "31"}, true, {"1402", "03", "10"}},
      {{"2023", "01", "32"}, true, {"", "", ""}},
      // An empty box or text that is no date leaves the Persian boxes.
      {{"2024", "", "20"}, true, {"keep", "keep", "keep"}},
      {{"20x4", "03", "20"}, true, {"keep", "keep", "keep"}},
  };
  for (const auto& c : table) {
    test::Station s;
    Desk& ws = s.open_entry();
    FrmKashf& k = ws.FrmKashf;
    ws.calendar = CalendarState{};
    put(k.TXTYEARmi, k.TXTMONTHMI, k.TXTDAYmi, c.in);
    put(k.TXTYEARsh, k.TXTMONTHSH, k.TXTDAYsh, {"keep", "keep", "keep"});
    gregorian_date_key_up(ws, c.key_in_day);
    expect_shown(k.TXTYEARsh, k.TXTMONTHSH, k.TXTDAYsh, c.out, c.in);
  }
}

TEST(DateBoxes, APersianKeyFillsTheGregorianGroup) {
  const struct {
    Dates in;
    int changed;  // 0 year, 1 month, 2 day
    Dates out;
  } table[] = {
      {{"1403", "01", "01"}, 2, {"2024", "03", "20"}},
      {{"1402", "09", "10"}, 2, {"2023", "11", "31"}},  // kept: the table's answer
      {{"1402", "آذر", "11"}, 1, {"2023", "12", "02"}},
      {{"1400", "12", "30"}, 0, {"2022", "03", "21"}},  // no such day; nothing clears it
      {{"1402", "07", "32"}, 2, {"", "", ""}},
      {{"1402", "07", ""}, 2, {"keep", "keep", "keep"}},  // the changed box is empty
      {{"14o2", "07", "5"}, 2, {"keep", "keep", "keep"}},
  };
  for (const auto& c : table) {
    test::Station s;
    Desk& ws = s.open_entry();
    FrmKashf& k = ws.FrmKashf;
    ws.calendar = CalendarState{};
    put(k.TXTYEARsh, k.TXTMONTHSH, k.TXTDAYsh, c.in);
    put(k.TXTYEARmi, k.TXTMONTHMI, k.TXTDAYmi, {"keep", "keep", "keep"});
    const Control* changed[] = {&k.TXTYEARsh, &k.TXTMONTHSH, &k.TXTDAYsh};
    shamsi_date_key_up(ws, *changed[c.changed]);
    expect_shown(k.TXTYEARmi, k.TXTMONTHMI, k.TXTDAYmi, c.out, c.in);
  }
}

TEST(DateBoxes, LeavingGivesOneFigureItsLeadingZero) {
  test::Station s;
  Desk& ws = s.open_entry();
  TextBox& d = ws.FrmKashf.TXTDAYsh;
  for (const auto& [in, out] : {std::pair<const char*, const char*>{"5", "05"}, {"12", "12"}, {"", ""}}) {
    d.text = in;
    date_box_leave(ws, d);
    EXPECT_EQ(d.text, out) << in;
  }
}

// Typed on the entry screen, the boxes' own events carry the rules.
TEST(DateBoxes, TypingInTheBoxesConvertsAndLeavingPads) {
  test::Station s;
  Desk& ws = s.open_entry();
  FrmKashf& k = ws.FrmKashf;
  ws.set_text(k.TXTYEARmi, "2024");
  ws.set_text(k.TXTMONTHMI, "03");
  ws.type(k.TXTDAYmi, "5");
  ws.key_up(k.TXTDAYmi, "5");
  EXPECT_EQ(k.TXTYEARsh.text + "/" + k.TXTMONTHSH.text + "/" + k.TXTDAYsh.text, "1402/12/15");
  ws.focus_now(k.TXTMONTHMI);
  EXPECT_EQ(k.TXTDAYmi.text, "05");
  ws.set_text(k.TXTDAYsh, "16");
  ws.key_up(k.TXTDAYsh, "6");
  EXPECT_EQ(k.TXTDAYmi.text, "06");
}

}  // namespace
}  // namespace obsdesk
