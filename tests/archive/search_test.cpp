// The search dialog: today's date in both calendars, each calendar filling the
// other, and the search text it hands back (the browser's tests and the saving
// scenarios find reports by it).
#include "archive/search.h"

#include <gtest/gtest.h>

#include "screens/handoffs.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using test::Station;

struct Returned {
  bool called = false;
  std::string text;
};

void open_find(Desk& ws, Returned& out) {
  open_find_dialog(ws, [&out](Desk&, const std::string& t) {
    out.called = true;
    out.text = t;
  });
}

std::vector<std::string> boxes(FrmFind& f) {
  return {f.TXTYEARmi.text, f.ComMI.text, f.TXTDAYmi.text, f.TXTYEARsh.text, f.ComSH.text,
          f.TXTDAYsh.text,  f.TXTDAYWEEK.text, f.Txtfind.text};
}

TEST(Search, OpensOnTodayInBothCalendars) {
  Station s({2024, 3, 20, 5, 40, 0});
  Desk& ws = s.start();
  Returned r;
  open_find(ws, r);
  FrmFind& f = ws.FrmFind;
  EXPECT_EQ(ws.active_screen(), &f);
  EXPECT_EQ(boxes(f), (std::vector<std::string>{"2024", "MAR", "20", "1403", "فروردين", "01", "Wednesday", "240320"}));
  EXPECT_EQ(f.DTPicker1.text, "2024-03-20");
  EXPECT_FALSE(r.called);
}

TEST(Search, EachDatePartFillsTheOtherCalendarAndTheSearchText) {
  struct Step {
    const char* box;
    const char* text;
    std::vector<std::string> after;  // Gregorian, Persian, weekday, search text
    bool whole = false;              // set in one change, not typed key by key
  };
  const Step steps[] = {
      {"TXTDAYmi", "5", {"2024", "MAR", "5", "1402", "اسفند", "15", "Tuesday", "240305"}},
      {"txttime", "6", {"2024", "MAR", "5", "1402", "اسفند", "15", "Tuesday", "24030506"}},
      {"ComMI", "DEC", {"2024", "DEC", "5", "1403", "آذر", "15", "Thursday", "24120506"}},
      {"TXTYEARmi", "2023", {"2023", "DEC", "5", "1402", "آذر", "15", "Tuesday", "23120506"}},
      {"txttime", "", {"2023", "DEC", "5", "1402", "آذر", "15", "Tuesday", "231205"}},
      // The Persian side: 10 Azar comes back as the 31st of November, as the
      // records already archived hold it.
      {"TXTDAYsh", "10", {"2023", "NOV", "31", "1402", "آذر", "10", "", "231131"}},
      {"ComSH", "دي", {"2023", "DEC", "31", "1402", "دي", "10", "Sunday", "231231"}},
      {"TXTDAYsh", "11", {"2024", "JAN", "01", "1402", "دي", "11", "Monday", "240101"}},
      {"TXTYEARsh", "1369", {"1991", "JAN", "01", "1369", "دي", "11", "Tuesday", "910101"}},
      {"DTPicker1", "2025-01-01", {"2025", "JAN", "01", "1403", "دي", "12", "Wednesday", "250101"}},
      // Text that is no date leaves the boxes as they are.
      {"TXTYEARmi", "20x5", {"20x5", "JAN", "01", "1403", "دي", "12", "Wednesday", "250101"}, true},
      {"TXTDAYsh", "", {"20x5", "JAN", "01", "1403", "دي", "", "Wednesday", "250101"}, true},
      {"DTPicker1", "soon", {"20x5", "JAN", "01", "1403", "دي", "", "Wednesday", "250101"}, true},
      {"TXTDAYmi", "40", {"20x5", "JAN", "40", "1403", "دي", "", "Wednesday", "250101"}, true},
  };
  Station s({2024, 3, 20, 5, 40, 0});
  Desk& ws = s.start();
  Returned r;
  open_find(ws, r);
  FrmFind& f = ws.FrmFind;
  for (const Step& st : steps) {
    Control& c = s.at(std::string("FrmFind.") + st.box);
    if (st.whole) ws.set_text(c, st.text);
    else if (c.kind == Kind::ComboBox) ws.choose(c, st.text);
    else ws.type(c, st.text);
    EXPECT_EQ(boxes(f), st.after) << st.box << " " << st.text;
  }
}

TEST(Search, FindReturnsTheTextAndAnyOtherCloseReturnsNothing) {
  Station s({2024, 3, 20, 5, 40, 0});
  Desk& ws = s.start();
  Returned found;
  open_find(ws, found);
  ws.type(ws.FrmFind.txttime, "12");
  ws.click(ws.FrmFind.CmdFind);
  EXPECT_TRUE(found.called);
  EXPECT_EQ(found.text, "24032012");
  EXPECT_FALSE(ws.FrmFind.visible);
  EXPECT_EQ(ws.active_screen(), &ws.FrmMain);

  // It keeps the date last asked for; a typed search text is taken as it stands.
  Returned typed;
  open_find(ws, typed);
  EXPECT_EQ(ws.FrmFind.Txtfind.text, "24032012");
  ws.type(ws.FrmFind.Txtfind, "0501");
  ws.click(ws.FrmFind.CmdFind);
  EXPECT_EQ(typed.text, "0501");

  Returned closed;
  open_find(ws, closed);
  ws.unload(ws.FrmFind);
  EXPECT_TRUE(closed.called);
  EXPECT_EQ(closed.text, "");
  EXPECT_FALSE(ws.FrmFind.loaded);
}

}  // namespace
}  // namespace obsdesk
