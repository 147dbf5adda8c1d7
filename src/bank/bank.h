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

#include "bank/fd.h"
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
  explicit BankLock(Fd fd) : fd_(std::move(fd)) {}
  Fd fd_;
};

// True when the root holds no bank yet (missing or without the program folder).
bool bank_is_new(const std::filesystem::path& root);

// A database that is unreadable, not a database or fails SQLite's quick check:
// the reason, or empty when the file is whole.
std::string database_damage(const std::filesystem::path& file);

}  // namespace obsdesk
