// The archive survives a kill at any moment: a child process saves report after
// report and is killed at random points; after each kill the bank must pass
// SQLite's integrity check, hold every save the child reported as done, and
// hold no half row.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>
#include <set>
#include <thread>

#include "archive/report_fixture.h"
#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/sqlite.h"
#include "station/program.h"
#include "core/textnum.h"

namespace obsdesk {
namespace {

namespace fs = std::filesystem;

constexpr int kKills = 200;

// The child: one program run on the bank, saving until it is killed. Each save
// done is told on the pipe by its note.
[[noreturn]] void save_forever(const fs::path& root, int report_fd, int run) {
  try {
    QueueAsker asker;
    FixedClock clock({2024, 3, 20, 5, 40, 0});
    MemoryClipboard clipboard;
    Workstation ws(root, Services{asker, clock, clipboard});
    start_program(ws);
    ws.click(ws.FrmMain.Command2);
    for (int i = 0;; ++i) {
      test::Obs o;
      o.note = "run " + std::to_string(run) + " save " + std::to_string(i);
      test::new_report(ws, o);
      test::confirm(ws);
      ws.click(ws.FrmDisplayKashf.save);
      if (!ws.take_messages().empty()) _exit(3);
      const std::string done = o.note + "\n";
      if (::write(report_fd, done.data(), done.size()) != static_cast<ssize_t>(done.size())) _exit(4);
      ws.show(ws.FrmDisplayKashf);  // back from the copy-out dialog
    }
  } catch (...) {
    _exit(5);
  }
}

std::set<std::string> read_reports(int fd) {
  std::string all;
  char buf[4096];
  for (ssize_t n; (n = ::read(fd, buf, sizeof buf)) > 0;) all.append(buf, static_cast<std::size_t>(n));
  std::set<std::string> out;
  std::size_t start = 0;
  for (std::size_t nl; (nl = all.find('\n', start)) != std::string::npos; start = nl + 1)
    out.insert(all.substr(start, nl - start));
  return out;
}

TEST(Durability, KillsAtRandomPointsLoseNoSaveAndLeaveNoHalfRow) {
  test::TempDir dir;
  const fs::path root = dir.path() / "bank";
  create_bank(root);
  const fs::path kashf = resolve_bank_path(root, "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb");
  std::mt19937 random(20240320);
  std::uniform_int_distribution<int> delay_us(0, 60000);
  std::set<std::string> reported;
  int saves_seen = 0;
  for (int run = 0; run < kKills; ++run) {
    int fds[2];
    ASSERT_EQ(::pipe(fds), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      ::close(fds[0]);
      save_forever(root, fds[1], run);
    }
    ::close(fds[1]);
    // Every fourth run waits for one whole save first, so that kills also fall
    // on a bank that already holds this run's rows however slow the machine is.
    std::string first;
    if (run % 4 == 0) {
      char c = 0;
      while (::read(fds[0], &c, 1) == 1 && c != '\n') first += c;
      reported.insert(first);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(delay_us(random)));
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "run " << run << " ended by itself with " << WEXITSTATUS(status);
    const auto done = read_reports(fds[0]);
    ::close(fds[0]);
    reported.insert(done.begin(), done.end());

    Database db(kashf, Database::Mode::ReadWrite);
    auto check = db.prepare("PRAGMA integrity_check");
    ASSERT_TRUE(check.step());
    ASSERT_EQ(check.text(0), "ok") << "run " << run;
    std::set<std::string> stored;
    auto rows = db.prepare("SELECT NOTE, yymmddttgg, TYPEREPORT, SCDATA, OBSERVERNAME, TXT1 FROM KASHF");
    while (rows.step()) {
      stored.insert(rows.text(0));
      // Every row is whole: the key padded, the kind, the S line, the observer.
      ASSERT_EQ(rows.text(1), "24032006  ") << rows.text(0);
      ASSERT_EQ(rows.text(2), "SYNOP    ") << rows.text(0);
      ASSERT_FALSE(rows.text(3).empty()) << rows.text(0);
      ASSERT_EQ(len(rows.text(4)), 30u) << rows.text(0);
    }
    for (const std::string& note : reported) ASSERT_TRUE(stored.count(note)) << note << " reported done, not stored";
    saves_seen = static_cast<int>(stored.size());
  }
  // The kills fell at many points, so some saves were done and some cut off.
  EXPECT_GT(saves_seen, 0);
  EXPECT_FALSE(reported.empty());
}

}  // namespace
}  // namespace obsdesk
