#include "cli/runner.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <sstream>

#include "support/test_support.h"

namespace obsdesk {
namespace {

TEST(SplitCommand, WordsQuotesAndComments) {
  const struct {
    const char* line;
    std::vector<std::string> words;
  } cases[] = {
      {"", {}},
      {"   # only a comment", {}},
      {"type Text2 240", {"type", "Text2", "240"}},
      {"choose Combo5 \"SYNOP    \"", {"choose", "Combo5", "SYNOP    "}},
      {"set Text74 \"say \\\"hi\\\" \\\\ there\"", {"set", "Text74", "say \"hi\" \\ there"}},
      {"type Text2 \"\"", {"type", "Text2", ""}},
      {"print Text1 # why", {"print", "Text1"}},
      {"expect Text2 a#b", {"expect", "Text2", "a#b"}},
      {"\tenter\r", {"enter"}},
  };
  for (const auto& c : cases) EXPECT_EQ(split_command(c.line), c.words) << c.line;
  EXPECT_THROW(split_command("set Text1 \"open"), ScriptError);
  EXPECT_THROW(split_command("set Text1 \"a\"b"), ScriptError);
}

struct Outcome {
  int status;
  std::string out, err;
};

Outcome run(const std::string& script) {
  test::TempDir dir;
  std::ostringstream out, err;
  Runner r(dir.path() / "bank", out);
  r.set_now({2024, 3, 20, 5, 40, 0});
  std::istringstream in(script);
  const int status = r.run(in, "s", err);
  return {status, out.str(), err.str()};
}

TEST(Runner, PrintsExpectsAndTellsBadLinesByNumber) {
  const struct {
    const char* script;
    int status;
    const char* out;
    const char* err;
  } cases[] = {
      {"start\nprint FrmKashf.Text44\n", 0, "FrmKashf.Text44=MEHRABAD AIRPORT  OIII  40754\n", ""},
      {"start\nexpect FrmMain.LabOstan TEHRAN\n", 0, "", ""},
      {"start\n\nexpect FrmMain.LabOstan GUILAN\nprint screen\n", 1, "",
       "s:3: expected FrmMain.LabOstan=\"GUILAN\", got \"TEHRAN\"\n"},
      {"start\nfly away\n", 2, "", "s:2: unknown command fly\ns:2: in \"fly away\"\n"},
      {"start\nprint FrmKashf.Nope\n", 2, "", "s:2: unknown control FrmKashf.Nope\ns:2: in \"print FrmKashf.Nope\"\n"},
      {"click FrmMain.Command2\n", 2, "", "s:1: the program has not been started (use start)\ns:1: in \"click FrmMain.Command2\"\n"},
      {"start\ntype FrmKashf.Text2 1\n", 2, "", "s:2: FrmKashf.Text2 cannot be reached now\ns:2: in \"type FrmKashf.Text2 1\"\n"},
      {"start\nanswer maybe\n", 2, "", "s:2: usage: answer yes|no\ns:2: in \"answer maybe\"\n"},
      {"start\nclock 2024-13-01\n", 2, "", "s:2: not a time: 2024-13-01\ns:2: in \"clock 2024-13-01\"\n"},
      // A byte-order mark at the head of the script is no part of its first command.
      {"\xEF\xBB\xBFstart\nexpect FrmMain.LabOstan TEHRAN\n", 0, "", ""},
      {"start\nfly \xEF\xBB\xBF\n", 2, "", "s:2: unknown command fly\ns:2: in \"fly \xEF\xBB\xBF\"\n"},
      {"start\nclick FrmMain.CmdEnd\nprint FrmMain.Text1\n", 2, "", "s:3: the program has ended (use start)\ns:3: in \"print FrmMain.Text1\"\n"},
  };
  for (const auto& c : cases) {
    const Outcome r = run(c.script);
    EXPECT_EQ(r.status, c.status) << c.script;
    EXPECT_EQ(r.out, c.out) << c.script;
    EXPECT_EQ(r.err, c.err) << c.script;
  }
}

// A runaway line is quoted cut, and typing it costs no more than its length.
TEST(Runner, LongLines) {
  const std::string word(100000, 'x');
  Outcome r = run("start\n" + word + "\n");
  EXPECT_EQ(r.status, 2);
  const std::string shown = std::string(200, 'x') + "...";
  EXPECT_EQ(r.err, "s:2: unknown command " + std::string(184, 'x') + "...\ns:2: in \"" + shown + "\"\n");

  // The remarks box has no limit on its length. Typing costs its length: a copy
  // of the text per key would take minutes here, not a fraction of a second.
  const auto start = std::chrono::steady_clock::now();
  r = run("start\nclick FrmMain.Command2\nclick FrmDisplayKashf.newW\ntype Text74 " + std::string(300000, 'x') + "\n");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

// A folder given as the script is an error of the command line, not an empty
// script that passes.
TEST(RunnerProgram, AFolderIsNoScript) {
  test::TempDir dir;
  const std::string command = std::string(OBSDESK_CLI) + " --bank " + (dir.path() / "bank").string() + " run " +
                              dir.path().string() + " 2>/dev/null";
  const int status = std::system(command.c_str());
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 2);
}

}  // namespace
}  // namespace obsdesk
