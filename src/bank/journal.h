// The save journal: the writes one save makes to the text files, kept as one
// intent so that no crash and no write error leaves a report half written.
//
// A save appends lines to the archive files and replaces bulletin files whole.
// Those writes are first listed in a SaveJournal, recorded in the station's
// database in the same transaction as the report's row, and only then made. What
// a crash leaves recorded, the next start finishes:
//  - an intent whose row committed is made again: each append is cut back to the
//    file's length before it and written once more (unless the bytes already
//    stand there), each replacement is written to its temporary file and renamed;
//  - an intent whose row never committed (the lines of a confirmation that was
//    never saved) is undone: each append is cut back to its length before.
// Either way the files end as if the save finished or never began.
//
// Contract of a SaveJournal:
//  - append(file, bytes): the bytes go at the end of the file, which is created
//    when missing (its folder never is). The length before is read when the call
//    is made, or follows from the intent's earlier appends to the same file.
//  - replace(file, bytes): the file's content becomes the bytes, written to
//    "<file>.new" and renamed over the file, so the name never stands for a part.
//  - Bytes are any bytes; nothing is converted.
//  - write() makes the appends and writes the temporary files, in the order they
//    were added; after a failure there undo() puts every file back as it was
//    before the intent. put_in_place() then renames the temporary files over
//    their files: the renames are the point of no return.
// Any part of a save adds its files with one call each; the journal does not
// know what the files are.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/services.h"

namespace obsdesk {

class Database;

class SaveJournal {
 public:
  enum class Kind { Append, Replace };
  struct Op {
    Kind kind;
    std::filesystem::path file;
    std::int64_t before;  // the file's length before the intent's append; -1: no such file
    std::string bytes;
  };

  explicit SaveJournal(FileSeam* seam = nullptr) : seam_(seam) {}

  void append(const std::filesystem::path& file, std::string bytes);
  void replace(const std::filesystem::path& file, std::string bytes);

  bool empty() const { return ops_.empty(); }
  const std::vector<Op>& ops() const { return ops_; }

  void write() const;
  void put_in_place() const;
  // Every appended file back to its length before the intent (a file the intent
  // created is removed), every temporary file removed. Renames already made stay.
  void undo() const;

 private:
  FileSeam* seam_;
  std::vector<Op> ops_;
};

// The temporary name a replacement is written under before its rename.
std::filesystem::path temporary_of(const std::filesystem::path& file);

// ---- The journal table of a database --------------------------------------------
// One row an intent: its number, whether its report row committed, and its
// operations in their order, each with its kind, its file (below the bank root
// when it lies there), the length before and the bytes. Made when missing.
void create_journal_table(Database& db);

// Records the intent's operations, not yet committed: a confirmation's lines,
// whose row is saved later. Returns the intent's number.
std::int64_t record_provisional(Database& db, const std::filesystem::path& root, const SaveJournal& j);

// A committed intent and the confirmations' intents that joined it.
struct Commit {
  std::int64_t intent = 0;
  std::int64_t first_joined = 0;  // the first joined intent; the intent itself when none joined
};
// Inside the caller's transaction (the one that commits the report's row): every
// provisional intent joins this save, and the save's own operations are recorded
// as committed. Intents older than the last save's are dropped: by now a flush
// of the bank has put their files on the disk.
Commit record_committed(Database& db, const std::filesystem::path& root, const SaveJournal& j);
// The intent is forgotten: its files were put back (a confirmation whose lines
// could not all be written).
void drop_intent(Database& db, std::int64_t intent);
// The save's row was rolled back and its own files put back: its own operations
// are forgotten, and the confirmation's lines that joined it are provisional
// again, waiting for the row's next save.
void withdraw_intent(Database& db, const Commit& c);

// Finishes what a crash or a failed save left in the table. Every committed
// intent is checked and made again where its bytes do not stand; at start every
// provisional one is also undone and forgotten. Committed intents stay in the
// table until a later save's flush covers their files. Counts the intents whose
// files had to be written or put back.
struct Recovery {
  int redone = 0;
  int undone = 0;
};
Recovery finish_pending(Database& db, const std::filesystem::path& root, FileSeam* seam, bool at_start);

// ---- File calls ----------------------------------------------------------------

// The runtime's words for a failed file call with the file's name: "Path not
// found", "Permission denied", "Disk full", or the system's own.
[[noreturn]] void file_error(const std::filesystem::path& file, int err);
// Everything written under the bank reaches the disk, in one flush of its file
// system.
void flush_files(const std::filesystem::path& root, FileSeam* seam = nullptr);

}  // namespace obsdesk
