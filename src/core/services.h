// The services of the desktop that the rules lean on, handed to the Workstation:
// the blocking questions and plain message boxes, the computer's clock and the
// clipboard. The desktop gives real ones; tests and the scenario runner give the
// small ones below.
#pragma once

#include <deque>
#include <filesystem>
#include <string>

namespace obsdesk {

// Yes-or-no questions block the handler until answered; a plain message box only
// tells (the desktop shows it, the runner records it).
class Asker {
 public:
  virtual ~Asker() = default;
  virtual bool ask(const std::string& question) = 0;
  virtual void tell(const std::string& text, const std::string& title) { (void)text, (void)title; }
};

// Answers from a queue; a question with no queued answer is answered yes.
class QueueAsker : public Asker {
 public:
  void queue(bool answer) { answers_.push_back(answer); }
  bool ask(const std::string&) override {
    if (answers_.empty()) return true;
    const bool a = answers_.front();
    answers_.pop_front();
    return a;
  }

 private:
  std::deque<bool> answers_;
};

struct DateTime {
  int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime now() = 0;
};

// The computer's local time.
class SystemClock : public Clock {
 public:
  DateTime now() override;
};

// A clock that shows what it is set to; tests and the runner move it by hand.
class FixedClock : public Clock {
 public:
  explicit FixedClock(DateTime t = {}) : t_(t) {}
  DateTime now() override { return t_; }
  void set(DateTime t) { t_ = t; }

 private:
  DateTime t_;
};

// "YYYY-MM-DD HH:MM" (seconds optional); false when the text is no such time.
[[nodiscard]] bool parse_date_time(const std::string& text, DateTime& out);

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void clear() = 0;
  virtual void set_text(const std::string& text) = 0;
  virtual std::string text() const = 0;
};

// Keeps the text in memory; the runner prints it as "clipboard".
class MemoryClipboard : public Clipboard {
 public:
  void clear() override { text_.clear(); }
  void set_text(const std::string& t) override { text_ = t; }
  std::string text() const override { return text_; }

 private:
  std::string text_;
};

// The file-system calls that the bank's writers make, each announced before it
// runs: a test stops the program or fails the call there, and a restart shows
// what such a stop or fault leaves behind.
enum class FileCall { MakeFolder, Open, Write, Cut, Rename, Remove, Commit, Flush };

class FileSeam {
 public:
  virtual ~FileSeam() = default;
  // Called before the call runs; may throw (the call fails with that error) or
  // end the process (a kill at this point).
  virtual void before(FileCall call, const std::filesystem::path& file) = 0;
};

// The seam's announcement, when a seam is set.
inline void announce(FileSeam* seam, FileCall call, const std::filesystem::path& file) {
  if (seam != nullptr) seam->before(call, file);
}

}  // namespace obsdesk
