// Shared by the tests: a bank in a fresh temporary folder, and a workstation
// started on it with a queue of answers, a clock set by hand and a clipboard in
// memory.
//
// Making a bank syncs every database it creates, which is most of what a short
// test costs on disk. So a test's bank is copied from one made bank: the folder
// named by OBSDESK_TEST_BANK (made once per test run, before the tests), else
// one made on first use in this process. A test that needs the first start
// itself asks for an empty root.
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

// Makes a bank in `root` as a first start does, with each database already
// switched to the write-ahead log that every later opening asks for (a switch
// is a synced write, so a copy that has it starts without one).
void make_bank(const std::filesystem::path& root);

// Copies a made bank, as a first start leaves it before anything is saved, into
// `root` (which must not hold a bank yet).
void copy_made_bank(const std::filesystem::path& root);

// What a Station's root holds before the program starts.
enum class Root { MadeBank, Empty };

// A workstation on its own bank. start() runs the program start.
struct Station {
  explicit Station(DateTime now = {2024, 3, 20, 5, 40, 0}, Root holds = Root::MadeBank);
  explicit Station(Root holds) : Station({2024, 3, 20, 5, 40, 0}, holds) {}
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
