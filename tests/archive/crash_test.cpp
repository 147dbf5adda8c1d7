// A save stopped before each of its file-system calls, by a kill or by a full
// disk, on a bank that already holds December's files, saving a SYN & MET of
// 15 January at 06 UTC (both bulletins, the month-end rewrite of both trees):
// after the restart, or after the fault is mended and the save done again, the
// files are byte for byte those of a save that ran through, or of one that never
// began, and no stray file is left.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <map>

#include "archive/report_fixture.h"
#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/sqlite.h"
#include "station/program.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;

// Every file of the bank but the databases, by its path below the root, with
// its bytes.
std::map<std::string, std::string> files_of(const fs::path& root) {
  std::map<std::string, std::string> out;
  for (const auto& e : fs::recursive_directory_iterator(root)) {
    if (!e.is_regular_file()) continue;
    const std::string name = e.path().filename().string();
    std::string upper_name = name;
    for (char& c : upper_name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (upper_name.find(".MDB") != std::string::npos) continue;
    out[e.path().lexically_relative(root).string()] = test::read_bytes(e.path());
  }
  return out;
}

fs::path kashf_db(const fs::path& root) { return resolve_bank_path(root, "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"); }

int rows_of(const fs::path& root) {
  Database db(kashf_db(root), Database::Mode::ReadWrite);
  auto check = db.prepare("PRAGMA integrity_check");
  check.step();
  EXPECT_EQ(check.text(0), "ok");
  auto st = db.prepare("SELECT count(*) FROM KASHF");
  st.step();
  return static_cast<int>(st.integer(0));
}

// Stops at the n-th announced call (of one kind, or of any): a kill ends the
// process there, a fault leaves part of a write behind and fails the call as a
// full disk does.
class StopAt : public FileSeam {
 public:
  enum class Act { Count, Kill, Fail };
  StopAt(Act act, int n, bool writes_only) : act_(act), n_(n), writes_only_(writes_only) {}
  void before(FileCall call, const fs::path& file) override {
    if (call == FileCall::Write) ++writes;
    if (writes_only_ && call != FileCall::Write) return;
    if (++calls != n_ || act_ == Act::Count) return;
    if (act_ == Act::Kill) ::_exit(0);
    std::ofstream(file, std::ios::binary | std::ios::app) << "2407542501150";
    throw std::runtime_error("Disk full: " + file.string());
  }
  int calls = 0, writes = 0;

 private:
  Act act_;
  int n_;
  bool writes_only_;
};

test::Obs january() {
  test::Obs o;
  o.kind = std::string(kSynMet);
  o.year = "2025";
  o.month = "01";
  o.day = "15";
  o.note = "january";
  return o;
}

struct Rig {
  explicit Rig(const fs::path& root) : ws(root, Services{asker, clock, clipboard}) {
    start_program(ws);
    ws.click(ws.FrmMain.Command2);
  }
  QueueAsker asker;
  FixedClock clock{{2025, 1, 15, 6, 5, 0}};
  MemoryClipboard clipboard;
  Workstation ws;
};

void save(Desk& ws, const test::Obs& o) {
  test::new_report(ws, o);
  test::confirm(ws);
  ws.click(ws.FrmDisplayKashf.save);
}

class SaveFaults : public ::testing::Test {
 protected:
  void SetUp() override {
    // The bank as the save finds it: December's report saved.
    template_ = dir_.path() / "template";
    create_bank(template_);
    {
      Rig d(template_);
      test::Obs december;
      december.year = "2024";
      december.month = "12";
      december.day = "20";
      save(d.ws, december);
      ASSERT_EQ(d.ws.take_messages(), std::vector<std::string>{});
    }
    never_began_ = files_of(template_);
    // The save that runs through, counting its calls.
    const fs::path root = fresh("whole");
    Rig d(root);
    StopAt count(StopAt::Act::Count, 0, false);
    d.ws.file_seam = &count;
    test::new_report(d.ws, january());
    test::confirm(d.ws);
    confirmed_ = files_of(root);
    d.ws.click(d.ws.FrmDisplayKashf.save);
    ASSERT_EQ(d.ws.take_messages(), std::vector<std::string>{});
    finished_ = files_of(root);
    calls_ = count.calls;
    writes_ = count.writes;
  }

  fs::path fresh(const std::string& name) {
    const fs::path root = dir_.path() / name;
    fs::remove_all(root);
    fs::copy(template_, root, fs::copy_options::recursive);
    return root;
  }

  test::TempDir dir_;
  fs::path template_;
  std::map<std::string, std::string> never_began_, confirmed_, finished_;
  int calls_ = 0, writes_ = 0;
};

TEST_F(SaveFaults, AKillBeforeAnyCallLeavesTheSaveWholeOrNeverBegun) {
  ASSERT_GT(calls_, 10);
  ASSERT_NE(finished_, never_began_);
  int whole = 0, none = 0;
  for (int n = 1; n <= calls_; ++n) {
    SCOPED_TRACE("killed before call " + std::to_string(n));
    const fs::path root = fresh("kill");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      StopAt kill(StopAt::Act::Kill, n, false);
      Rig d(root);
      d.ws.file_seam = &kill;
      save(d.ws, january());
      ::_exit(7);  // not reached: the kill comes first
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the child was not stopped";

    Rig again(root);  // the restart finishes or takes back what the kill left
    for (const std::string& m : again.ws.take_messages()) EXPECT_EQ(m.find("box: A "), 0u) << m;
    const int rows = rows_of(root);
    ASSERT_TRUE(rows == 1 || rows == 2);
    EXPECT_EQ(files_of(root), rows == 2 ? finished_ : never_began_);
    (rows == 2 ? whole : none)++;
    if (rows == 1) {
      // The observer makes the report again: each line once.
      save(again.ws, january());
      EXPECT_EQ(again.ws.take_messages(), std::vector<std::string>{});
      EXPECT_EQ(files_of(root), finished_);
    }
  }
  EXPECT_GT(whole, 0);
  EXPECT_GT(none, 0);
}

TEST_F(SaveFaults, AFullDiskAtAnyWriteLeavesNothingHalfWritten) {
  ASSERT_GT(writes_, 5);
  for (int n = 1; n <= writes_; ++n) {
    SCOPED_TRACE("disk full at write " + std::to_string(n));
    const fs::path root = fresh("full");
    Rig d(root);
    StopAt full(StopAt::Act::Fail, n, true);
    d.ws.file_seam = &full;
    test::new_report(d.ws, january());
    test::confirm(d.ws);
    if (!d.ws.take_messages().empty()) {
      EXPECT_EQ(files_of(root), never_began_);
      EXPECT_TRUE(d.ws.FrmKashf.visible);
      d.ws.file_seam = nullptr;  // room made
      test::confirm(d.ws);
    }
    ASSERT_EQ(d.ws.take_messages(), std::vector<std::string>{});
    d.ws.click(d.ws.FrmDisplayKashf.save);
    const auto told = d.ws.take_messages();
    if (!told.empty()) {
      EXPECT_EQ(told[0].find("box: Disk full: "), 0u) << told[0];
      EXPECT_EQ(files_of(root), confirmed_);
      EXPECT_EQ(rows_of(root), 1);
      d.ws.file_seam = nullptr;
      d.ws.click(d.ws.FrmDisplayKashf.save);
      ASSERT_EQ(d.ws.take_messages(), std::vector<std::string>{});
    }
    EXPECT_EQ(files_of(root), finished_);
    EXPECT_EQ(rows_of(root), 2);
    EXPECT_EQ(full.calls >= n, true) << "the fault was never reached";
  }
}

}  // namespace
}  // namespace obsdesk
