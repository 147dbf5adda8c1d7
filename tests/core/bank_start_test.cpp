// The bank at start: a first start stopped at any step, damaged and missing
// databases, the lock, and a station set up through the settings screen.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "archive/report_fixture.h"
#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/sqlite.h"
#include "station/program.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;

const char* kKashf = "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb";

// Every database a whole bank holds, with a table of each.
const std::vector<std::pair<std::string, std::string>>& bank_tables() {
  static const std::vector<std::pair<std::string, std::string>> t = {
      {"VARDOK\\BANK\\ACCESS\\SelectOstan.MDB", "NameOstan"}, {"VARDOK\\BANK\\ACCESS\\BackColor.MDB", "N_BackColor"},
      {"VARDOK\\BANK\\ACCESS\\ID.MDB", "ID"},                 {"VARDOK\\BANK\\ACCESS\\PAST.mdb", "Past"},
      {"VARDOK\\BANK\\ACCESS\\Station.mdb", "Station"},       {kKashf, "KASHF"},
      {kKashf, "COOD"},
  };
  return t;
}

class KillAt : public FileSeam {
 public:
  explicit KillAt(int n) : n_(n) {}
  void before(FileCall, const fs::path&) override {
    if (++calls == n_) ::_exit(0);
  }
  int calls = 0;

 private:
  int n_;
};

TEST(BankStart, AFirstStartStoppedAtAnyStepLeavesNoBankOrAWholeOne) {
  test::TempDir dir;
  KillAt count(0);
  {
    test::Station s(test::Root::Empty);
    s.ws->file_seam = &count;
    s.start();
  }
  ASSERT_GT(count.calls, 5);
  for (int n = 1; n <= count.calls; ++n) {
    SCOPED_TRACE("stopped before call " + std::to_string(n));
    const fs::path root = dir.path() / ("bank" + std::to_string(n));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      QueueAsker asker;
      FixedClock clock;
      MemoryClipboard clipboard;
      Workstation ws(root, Services{asker, clock, clipboard});
      KillAt kill(n);
      ws.file_seam = &kill;
      start_program(ws);
      ::_exit(7);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_TRUE(bank_is_new(root) || !fs::exists(bank_staging(root)));

    QueueAsker asker;
    FixedClock clock;
    MemoryClipboard clipboard;
    Workstation ws(root, Services{asker, clock, clipboard});
    start_program(ws);
    ws.click(ws.FrmMain.Command2);
    EXPECT_EQ(ws.take_messages(), std::vector<std::string>{});
    EXPECT_TRUE(ws.FrmDisplayKashf.visible);
    EXPECT_FALSE(fs::exists(bank_staging(root)));
    for (const auto& [path, table] : bank_tables()) {
      const fs::path file = resolve_bank_path(root, path);
      ASSERT_EQ(database_damage(file), "") << path;
      Database db(file, Database::Mode::ReadWrite);
      EXPECT_TRUE(db.has_table(table)) << path;
    }
  }
}

// A damaged database is named at start, kept byte for byte, copied beside
// itself, and never written; the program goes on with the others.
TEST(BankStart, ADamagedDatabaseIsNamedKeptAndCopied) {
  struct Case {
    const char* name;
    const char* path;
    std::function<void(const fs::path&)> damage;
  };
  auto cut_to = [](std::uintmax_t n) { return [n](const fs::path& f) { fs::resize_file(f, n); }; };
  auto flip_page = [](const fs::path& f) {
    std::fstream io(f, std::ios::in | std::ios::out | std::ios::binary);
    io.seekp(4096 + 8);  // the head of the second page
    io.write("\x7f\x7f\x7f\x7f\x7f\x7f\x7f\x7f", 8);
  };
  auto folder = [](const fs::path& f) {
    fs::remove(f);
    fs::create_directory(f);
  };
  const std::vector<Case> cases = {
      {"Kashf cut short", kKashf, cut_to(6000)},
      {"Kashf of zero bytes", kKashf, cut_to(0)},
      {"Kashf with a page overwritten", kKashf, flip_page},
      {"a folder in Kashf's place", kKashf, folder},
      {"PAST of zero bytes", "VARDOK\\BANK\\ACCESS\\PAST.mdb", cut_to(0)},
      {"Station with a page overwritten", "VARDOK\\BANK\\ACCESS\\Station.mdb", flip_page},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    test::Station s({2025, 1, 15, 6, 5, 0});
    {
      Desk& ws = s.open_browser();
      for (int i = 0; i < 6; ++i) {
        test::new_report(ws, {});
        test::confirm(ws);
        ws.click(ws.FrmDisplayKashf.save);
        ws.show(ws.FrmDisplayKashf);
      }
      ASSERT_EQ(ws.take_messages(), std::vector<std::string>{});
      s.ws.reset();
    }
    const fs::path file = resolve_bank_path(s.root(), c.path);
    {
      // The databases' logs folded in first, as a clean end of the program does.
      Database db(file, Database::Mode::ReadWrite);
      db.exec("PRAGMA wal_checkpoint(TRUNCATE)");
      db.exec("PRAGMA journal_mode=DELETE");
    }
    c.damage(file);
    const bool is_file = fs::is_regular_file(file);
    const std::string bytes = is_file ? test::read_bytes(file) : "";
    s.ws = std::make_unique<Workstation>(s.root(), Services{s.asker, s.clock, s.clipboard});
    Desk& ws = s.start();
    ws.click(ws.FrmMain.Command2);
    const auto told = ws.take_messages();
    ASSERT_FALSE(told.empty());
    EXPECT_NE(told[0].find("The database " + file.string() + " is damaged"), std::string::npos) << told[0];
    EXPECT_NE(told[0].find("Restore it from a backup"), std::string::npos) << told[0];
    EXPECT_EQ(fs::is_regular_file(file), is_file);
    if (is_file) {
      EXPECT_EQ(test::read_bytes(file), bytes);
      EXPECT_EQ(test::read_bytes(file.string() + ".damaged-20250115-0605"), bytes);
    }
    EXPECT_TRUE(ws.FrmMain.loaded);  // the program goes on
  }
}

// A bank that lacks a database or a table gets it at start, with the rows kept
// and the observer told what was made.
TEST(BankStart, WhatTheBankLacksIsMadeAndToldAndNothingIsOverwritten) {
  test::Station s;
  s.start();
  s.ws.reset();
  const fs::path past = resolve_bank_path(s.root(), "VARDOK\\BANK\\ACCESS\\PAST.mdb");
  const fs::path kashf = resolve_bank_path(s.root(), kKashf);
  fs::remove(past);
  {
    Database db(kashf, Database::Mode::ReadWrite);
    db.exec("DROP TABLE COOD");
    db.exec("INSERT INTO KASHF (NOTE) VALUES ('kept')");
  }
  Desk& ws = s.restart();
  const auto told = ws.take_messages();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_NE(told[0].find(past.string()), std::string::npos) << told[0];
  EXPECT_NE(told[0].find(kashf.string() + ": table COOD"), std::string::npos) << told[0];
  Database db(kashf, Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT NOTE FROM KASHF");
  ASSERT_TRUE(st.step());
  EXPECT_EQ(st.text(0), "kept");
  EXPECT_TRUE(db.has_table("COOD"));
  s.restart();
  EXPECT_EQ(s.ws->take_messages(), std::vector<std::string>{});  // made once
}

TEST(BankStart, ARootThatCannotBeHeldIsToldWithItsReason) {
  test::TempDir dir;
  std::string reason = "unset";
  auto held = BankLock::acquire(dir.path(), &reason);
  ASSERT_TRUE(held);
  EXPECT_FALSE(BankLock::acquire(dir.path(), &reason));
  EXPECT_EQ(reason, "");  // another copy: the program's own words
  held.reset();  // the copy that held it ends: the root is free again
  EXPECT_TRUE(BankLock::acquire(dir.path(), &reason));
  std::ofstream(dir.path() / "plain") << "x";
  EXPECT_FALSE(BankLock::acquire(dir.path() / "plain", &reason));
  EXPECT_EQ(reason, "Not a directory");
  EXPECT_FALSE(BankLock::acquire(dir.path() / "missing", &reason));
  EXPECT_EQ(reason, "No such file or directory");
}

// A station set up through the settings screen, with a code that has no folder,
// saves on its first day, a January 06 UTC report with no December behind it.
TEST(BankStart, ANewStationSavesItsFirstJanuaryMorning) {
  test::Station s({2025, 1, 15, 6, 5, 0});
  Desk& ws = s.start();
  FrmOption& o = ws.FrmOption;
  ws.click(ws.FrmMain.Command10);  // the settings screen
  ws.click(o.Label45);
  ws.click(o.EDITT);
  ws.set(o.TXTCOD, "OIMM");
  ws.set(o.NUMCOD, "40766");
  ws.click(o.Label45);
  ws.click(o.UPDATE);
  ASSERT_TRUE(ws.ended());
  const fs::path station = s.root() / "VARDOK" / "BANK" / "OIMM";
  for (const char* p : {"ACCESS/Kashf.mdb", "ACCESS/Rain.mdb"}) EXPECT_EQ(database_damage(station / p), "") << p;
  EXPECT_TRUE(fs::is_directory(station / "TEXT" / "SCDATA"));
  EXPECT_TRUE(fs::is_directory(station / "TEXT" / "KASHF"));

  Desk& again = s.restart();
  EXPECT_EQ(again.FrmMain.txtpathnamebank1.text, "VARDOK\\BANK\\OIMM\\ACCESS\\Kashf.mdb");
  again.take_messages();
  again.click(again.FrmMain.Command2);
  test::Obs o1;
  o1.year = "2025";
  o1.month = "01";
  o1.day = "15";
  test::new_report(again, o1);
  test::confirm(again);
  again.click(again.FrmDisplayKashf.save);
  EXPECT_EQ(again.take_messages(), std::vector<std::string>{});
  Database db(station / "ACCESS" / "Kashf.mdb", Database::Mode::ReadWrite);
  auto st = db.prepare("SELECT count(*) FROM KASHF");
  st.step();
  EXPECT_EQ(st.integer(0), 1);
  EXPECT_TRUE(fs::exists(station / "TEXT" / "KASHF" / "KASHF766.dat"));
}

}  // namespace
}  // namespace obsdesk
