// The record browser: the moves and their ends, the search, the delete, a new
// report and the display that follows the row.
#include "archive/browser.h"

#include <gtest/gtest.h>

#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/sqlite.h"
#include "screens/record.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

using test::Station;

std::filesystem::path kashf_db(const Station& s) {
  return resolve_bank_path(s.root(), "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb");
}

// Rows put straight into the table before the browser opens: key, kind, hour.
void add_rows(Station& s, std::initializer_list<std::array<const char*, 3>> rows) {
  Database db(kashf_db(s), Database::Mode::ReadWrite);
  for (const auto& r : rows)
    db.prepare("INSERT INTO KASHF (yymmddttgg, TYPEREPORT, UTC) VALUES (?, ?, ?)")
        .bind(1, r[0]).bind(2, r[1]).bind(3, r[2]).run();
}

std::int64_t row_count(const Station& s) {
  Database db(kashf_db(s), Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT count(*) FROM KASHF");
  st.step();
  return st.integer(0);
}

TEST(Browser, MovesStopAtTheEndsWithTheirMessage) {
  {
    Station s;  // an empty table: every move is told
    Desk& ws = s.open_browser();
    FrmDisplayKashf& b = ws.FrmDisplayKashf;
    ws.take_messages();
    for (Control* c : Controls{&b.nextt, &b.back, &b.last}) {
      ws.click(*c);
      EXPECT_EQ(ws.take_messages(), std::vector<std::string>{"box: No Record Found [Message]"}) << c->name;
      EXPECT_EQ(b.TXTYYMMDDTT.text, "");
    }
  }
  Station s;
  add_rows(s, {{"2403200000", "SYNOP    ", "00"}, {"2403200300", "SYNOP    ", "03"}, {"2403200600", "SYNOP    ", "06"}});
  Desk& ws = s.open_browser();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  ws.take_messages();
  struct Step {
    Control* button;
    const char* key;  // the row shown afterwards
    bool message;     // "No Record Found"
  };
  const Step steps[] = {
      {&b.back, "2403200300", false}, {&b.back, "2403200000", false}, {&b.back, "2403200000", true},
      {&b.nextt, "2403200300", false}, {&b.last, "2403200600", false}, {&b.nextt, "2403200600", true},
      {&b.back, "2403200300", false},
  };
  for (const Step& st : steps) {
    ws.click(*st.button);
    EXPECT_EQ(b.TXTYYMMDDTT.text, st.key) << st.button->name;
    const auto msgs = ws.take_messages();
    EXPECT_EQ(msgs, st.message ? std::vector<std::string>{"box: No Record Found [Message]"} : std::vector<std::string>{})
        << st.button->name << " to " << st.key;
  }
  EXPECT_EQ(b.KASHF.caption, "The Last Record");
}

TEST(Browser, SearchFindsTheKeyAnywhereOrStays) {
  Station s;
  add_rows(s, {{"2412310600", "SYNOP    ", "06"}, {"2501050600", "SYNOP    ", "06"}, {"2501051200", "SYNOP    ", "12"}});
  Desk& ws = s.open_browser();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  ws.take_messages();
  struct Case {
    const char* text;
    const char* shown;
    bool not_found;
  };
  const Case cases[] = {
      {"0105", "2501050600", false},  // inside the key, not at its start
      {"2501051", "2501051200", false},
      {"2603", "2501051200", true},   // no match: the row kept
      {"", "2501051200", false},      // the dialog closed without a text
      {"12310", "2412310600", false},
  };
  for (const Case& c : cases) {
    search_kashf(ws, c.text);
    EXPECT_EQ(b.TXTYYMMDDTT.text, c.shown) << c.text;
    EXPECT_EQ(ws.take_messages(),
              c.not_found ? std::vector<std::string>{"box: no record found. [not found]"} : std::vector<std::string>{})
        << c.text;
  }
  ws.click(b.search);  // the dialog hands back nothing until it is built
  EXPECT_EQ(b.TXTYYMMDDTT.text, "2412310600");
}

TEST(Browser, DeleteAsksAndTheRowStaysShownUntilTheNextMove) {
  Station s;
  add_rows(s, {{"2403200000", "SYNOP    ", "00"}, {"2403200300", "SYNOP    ", "03"}});
  Desk& ws = s.open_browser();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  s.asker.queue(false);
  ws.click(b.Command1);
  EXPECT_EQ(row_count(s), 2);
  EXPECT_TRUE(b.Command1.visible);
  s.asker.queue(true);
  ws.click(b.Command1);
  EXPECT_EQ(row_count(s), 1);
  EXPECT_EQ(b.TXTYYMMDDTT.text, "2403200300");
  EXPECT_FALSE(b.Command1.visible);
  ws.take_messages();
  ws.click(b.nextt);  // past the end, and the kept row is gone: the last row stands
  EXPECT_EQ(b.TXTYYMMDDTT.text, "2403200000");
  ws.click(b.back);
  EXPECT_EQ(ws.take_messages(), (std::vector<std::string>{"box: No Record Found [Message]", "box: No Record Found [Message]"}));
}

TEST(Browser, NewReportRestoresThePastHoursAndOpensTheEntryScreen) {
  Station s;
  add_rows(s, {{"2403200300", "SYNOP    ", "03"}});
  Desk& ws = s.open_browser();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  FrmMain& m = ws.FrmMain;
  ws.set(m.txt06TB, "12.5");
  ws.set(m.txtrain03b, "1.2");
  ws.set(m.txtp21qfeb, "880.1");
  ws.set(m.txtutcpastb, "03");
  ws.set(m.txt06T, "stale");
  ws.click(b.newW);
  EXPECT_EQ(m.txt06T.text, "12.5");
  EXPECT_EQ(m.txtrain03.text, "1.2");
  EXPECT_EQ(m.txtp21qfe.text, "880.1");
  EXPECT_EQ(m.txtutcpast.text, "03");
  EXPECT_EQ(b.KASHF.rs.edit_mode(), Recordset::EditMode::Add);
  EXPECT_EQ(b.TXTYYMMDDTT.text, "");
  EXPECT_EQ(b.kept_row, std::optional<std::int64_t>(1));
  for (Control* c : Controls{&b.newW, &b.nextt, &b.back, &b.last, &b.search}) EXPECT_FALSE(c->enabled) << c->name;
  EXPECT_TRUE(b.save.enabled);
  EXPECT_FALSE(b.Command1.visible);
  EXPECT_TRUE(ws.FrmKashf.visible);
  EXPECT_FALSE(b.visible);
}

TEST(Browser, TheDisplayFollowsTheKindTheHourAndTheCloud) {
  Station s;
  Desk& ws = s.open_browser();
  FrmDisplayKashf& b = ws.FrmDisplayKashf;
  struct Kind {
    std::string_view kind;
    bool frame12, frame17, txt1, speci_text, summary;
    const char* caption;
  };
  const Kind kinds[] = {
      {kSynop, false, true, false, false, true, "METAR"},  {kSynMet, true, true, false, false, true, "METAR"},
      {kMetar, true, false, false, false, false, "METAR"}, {kMetar30, true, false, true, false, false, "METAR"},
      {kSpeci, true, false, true, true, false, "SPECI"},
  };
  for (const Kind& k : kinds) {
    ws.set(b.TXTSEL, std::string(k.kind));
    const std::string name(k.kind);
    EXPECT_EQ(b.Frame12.visible, k.frame12) << name;
    EXPECT_EQ(b.Frame17.visible, k.frame17) << name;
    EXPECT_EQ(b.Frame12.text, k.caption) << name;
    EXPECT_EQ(b.txt1.visible, k.txt1) << name;
    EXPECT_EQ(b.Text1.visible, !k.txt1) << name;
    EXPECT_EQ(b.TXTSPE.visible, k.speci_text) << name;
    EXPECT_EQ(b.TXTMET.visible, !k.speci_text) << name;
    for (Control* c : Controls{&b.Frame16, &b.Label42, &b.txtmin}) EXPECT_EQ(c->visible, k.summary) << name << c->name;
  }
  struct Hour {
    const char* hour;
    bool synoptic;
    const char* span;
  };
  const Hour hours[] = {{"00", true, "21-00"}, {"07", false, "21-00"}, {"03", true, "00-03"},
                        {"21", true, "18-21"}, {"13", false, "18-21"}};  // off the hours the span stays
  for (const Hour& h : hours) {
    ws.set(b.Text1, h.hour);
    for (Control* c : Controls{&b.Label94, &b.Label96, &b.Label109, &b.Txttond, &b.Txtmaxwind, &b.Frame6, &b.Frame17,
                               &b.Frame15, &b.Frame8, &b.Frame9, &b.Frame10, &b.Frame5})
      EXPECT_EQ(c->visible, h.synoptic) << h.hour << c->name;
    EXPECT_EQ(b.Labrain.text, h.span) << h.hour;
    EXPECT_EQ(ws.FrmCode.Labutc.text, h.span) << h.hour;
  }
  const std::pair<const char*, bool> clouds[] = {{"0 ", true}, {"5 ", false}, {"9", true}, {"", false}};
  for (const auto& [n, clear] : clouds) {
    ws.set(b.Text5, n);
    for (Control* c : Controls{&b.Frame1, &b.Frame2, &b.Frame3}) EXPECT_EQ(c->visible, !clear) << n;
    EXPECT_EQ(b.Image6.visible, clear) << n;
  }
  ws.set(b.TXTYYMMDDTT, "2501051200");
  EXPECT_EQ(b.TXTFILENAMEKASHF.text, "VARDOK\\BANK\\OIII\\TEXT\\KASHF\\KASHF754250105.dat");
  EXPECT_EQ(b.TXTFILENAMEKASHFM.text, "VARDOK\\BANK\\OIII\\TEXT\\KASHF\\KASHF7542501.dat");
  EXPECT_EQ(b.TXTFILENAMEKASHFT.text, "VARDOK\\BANK\\OIII\\TEXT\\KASHF\\KASHF754.dat");
}

}  // namespace
}  // namespace obsdesk
