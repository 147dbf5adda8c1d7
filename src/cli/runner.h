// The scenario runner: drives a workstation with a script of key strokes,
// clicks and answers, one command a line, and prints what is asked of it.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/services.h"

namespace obsdesk {

class Desk;
class Workstation;

// A line the runner cannot carry out: unknown command or control, bad arguments.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Splits a line into words: blanks separate, a quoted word keeps its blanks with
// \" and \\ as escapes, a word starting with # starts a comment.
std::vector<std::string> split_command(std::string_view line);

// The computer's clock until a time is set; then that time.
class RunnerClock : public Clock {
 public:
  DateTime now() override { return fixed_ ? *fixed_ : system_.now(); }
  void set(DateTime t) { fixed_ = t; }

 private:
  std::optional<DateTime> fixed_;
  SystemClock system_;
};

class Runner {
 public:
  Runner(std::filesystem::path bank_root, std::ostream& out);
  ~Runner();

  void set_now(DateTime t) { clock_.set(t); }

  // Runs a script. 0: done; 1: an expect failed; 2: a line could not be run or
  // the bank could not be opened. The reason goes to err with the line number.
  int run(std::istream& in, const std::string& source, std::ostream& err);

  // Runs one command; false when an expect failed (the difference is in
  // *failure). Throws ScriptError for a line it cannot run.
  [[nodiscard]] bool execute(const std::vector<std::string>& words, std::string* failure);

  Workstation* workstation() { return ws_.get(); }

 private:
  Desk& require_started();
  std::string value_of(std::string_view name);
  std::string dump(std::string_view screen);

  std::filesystem::path bank_root_;
  std::ostream& out_;
  QueueAsker asker_;
  RunnerClock clock_;
  MemoryClipboard clipboard_;
  std::unique_ptr<Workstation> ws_;
};

}  // namespace obsdesk
