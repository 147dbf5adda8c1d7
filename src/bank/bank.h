// The Observation bank: the folder tree under the bank root that takes the place
// of the old drive. The system names its files as Windows paths below the drive
// ("VARDOK\Bank\Access\ID.MDB"); one spelling per folder is kept on disk and the
// names are matched without regard to case, so "Bank", "bank" and "BANK" are the
// one folder.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/services.h"

namespace obsdesk {

class Database;

// The user's data folder for the bank: $XDG_DATA_HOME/obsdesk, else
// ~/.local/share/obsdesk.
std::filesystem::path default_bank_root();

// A system path below the drive ("VARDOK\BANK\OIII\ACCESS\Kashf.mdb") as a file
// under the bank root. A drive ("C:") in front is dropped; each part takes the
// spelling it already has on disk.
std::filesystem::path resolve_bank_path(const std::filesystem::path& root, std::string_view system_path);

// The bank paths of the control databases, below the drive.
std::string select_ostan_path(std::string_view prog);  // prog\Bank\Access\SelectOstan.MDB
std::string back_color_path(std::string_view prog);
std::string id_path(std::string_view prog);
std::string past_path(std::string_view prog);
std::string id_row_path(std::string_view prog);        // the second handle on ID

// The program's hold on its bank: a second running copy on the same root is
// refused. Tests on separate roots run side by side.
class BankLock {
 public:
  // nullptr when the root cannot be held; then the reason is empty when another
  // copy holds it, else the system's words for what stopped the lock.
  static std::unique_ptr<BankLock> acquire(const std::filesystem::path& root, std::string* reason = nullptr);
  ~BankLock();
  BankLock(const BankLock&) = delete;
  BankLock& operator=(const BankLock&) = delete;

 private:
  explicit BankLock(int fd) : fd_(fd) {}
  int fd_;
};

// True when the root holds no bank yet (missing or without the program folder).
bool bank_is_new(const std::filesystem::path& root);

// Creates the tree, the control databases and the demo station profile (Tehran
// Mehrabad, WMO 40754, ICAO OIII, 1190.8 m, 35 41 N) with its empty KASHF table.
// The whole tree is made in a staging folder in the root and renamed into place
// last, so a stop on the way leaves no bank (and the staging folder, cleared at
// the next start) rather than half of one. Throws BankError with the folder's
// name when the root cannot be written.
void create_bank(const std::filesystem::path& root, FileSeam* seam = nullptr);
// The staging folder of a first start, left behind only by a stop.
std::filesystem::path bank_staging(const std::filesystem::path& root);

// A station's tree below the program's folder: BANK\CCCC\ACCESS with Kashf.mdb
// (KASHF and COOD tables) and Rain.mdb, TEXT\SCDATA and TEXT\KASHF. What exists
// already is kept. Returns the system path of its Kashf.mdb.
std::string create_station_tree(const std::filesystem::path& root, std::string_view prog, std::string_view code);

// What the look at the bank at start found and did.
struct BankCheck {
  std::vector<std::string> made;  // "<file>" or "<file>: table <T>", made because missing
  struct Damage {
    std::filesystem::path file;
    std::string reason;
    std::filesystem::path copy;  // empty when no copy could be made
  };
  std::vector<Damage> damaged;
};
// Each bank database (the control databases, the Station database and the
// station's Kashf.mdb and Rain.mdb named by the ID row) is checked: a missing
// database or table is made (with the row a table needs to work), an existing one
// is never overwritten; a damaged one (unreadable, not a database, zero bytes, or
// failing SQLite's quick check) is left as it is and copied beside itself with
// the stamp in its name. The station's text folders are made when missing.
BankCheck check_bank(const std::filesystem::path& root, std::string_view prog, std::string_view stamp);
// A database that is unreadable, not a database or fails SQLite's quick check:
// the reason, or empty when the file is whole.
std::string database_damage(const std::filesystem::path& file);

// Schemas, all columns text.
void create_kashf_table(Database& db);
void create_past_table(Database& db);
void create_station_table(Database& db);

}  // namespace obsdesk
