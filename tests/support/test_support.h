// Shared by the tests: a bank in a fresh temporary folder, and a workstation
// started on it with a queue of answers, a clock set by hand and a clipboard in
// memory.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "core/services.h"
#include "station/workstation.h"

namespace obsdesk::test {

// A temporary folder, removed with everything in it at the end of the test.
class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// A workstation on its own bank. start() runs the program start.
struct Station {
  explicit Station(DateTime now = {2024, 3, 20, 5, 40, 0});
  TempDir dir;
  QueueAsker asker;
  FixedClock clock;
  MemoryClipboard clipboard;
  std::unique_ptr<Workstation> ws;
  std::filesystem::path root() const { return dir.path() / "bank"; }
  Desk& start();
  // Start and "Run": the record browser.
  Desk& open_browser();
  // Start, "Run", and a new report opened on the entry screen.
  Desk& open_entry();
  // A fresh workstation on the same bank, started: the program run again.
  Desk& restart();
  Control& at(const std::string& qualified);
};

// The bytes of a file as they lie on disk ("" when it is missing).
std::string read_bytes(const std::filesystem::path& file);

}  // namespace obsdesk::test
