#include "bank/bank.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

#include "bank/journal.h"
#include "bank/sqlite.h"
#include "core/textnum.h"

namespace obsdesk {

namespace fs = std::filesystem;

fs::path default_bank_root() {
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg != nullptr && *xdg != '\0')
    return fs::path(xdg) / "obsdesk";
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
    return fs::path(home) / ".local" / "share" / "obsdesk";
  return fs::current_path() / "obsdesk-bank";
}

namespace {

bool same_name_any_case(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'a' && x <= 'z') x = static_cast<char>(x - 'a' + 'A');
    if (y >= 'a' && y <= 'z') y = static_cast<char>(y - 'a' + 'A');
    if (x != y) return false;
  }
  return true;
}

// The name as it stands in the folder, in whatever case; the name itself when the
// folder holds none such.
std::string spelled_on_disk(const fs::path& folder, const std::string& part) {
  std::error_code ec;
  if (fs::exists(folder / part, ec)) return part;
  for (fs::directory_iterator it(folder, ec), done; !ec && it != done; it.increment(ec)) {
    std::string name = it->path().filename().string();
    if (same_name_any_case(name, part)) return name;
  }
  return part;
}

}  // namespace

fs::path resolve_bank_path(const fs::path& root, std::string_view system_path) {
  std::vector<std::string> parts;
  bool first = true;
  std::size_t start = 0;
  while (start <= system_path.size()) {
    std::size_t end = system_path.find_first_of("\\/", start);
    if (end == std::string_view::npos) end = system_path.size();
    std::string part(system_path.substr(start, end - start));
    start = end + 1;
    if (part.empty() || part == ".") continue;
    const bool drive = first && part.size() == 2 && part[1] == ':';
    first = false;
    if (!drive) parts.push_back(std::move(part));
  }
  if (parts.empty()) return root;

  // Most names are spelled as on disk, or only their last part is new: two looks
  // settle those before the walk through every folder.
  fs::path folder = root;
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) folder /= parts[i];
  std::error_code ec;
  if (fs::is_directory(folder, ec)) return folder / spelled_on_disk(folder, parts.back());

  fs::path out = root;
  for (const std::string& part : parts) out /= spelled_on_disk(out, part);
  return out;
}

std::string select_ostan_path(std::string_view prog) { return std::string(prog) + "\\Bank\\Access\\SelectOstan.MDB"; }
std::string back_color_path(std::string_view prog) { return std::string(prog) + "\\Bank\\Access\\BackColor.MDB"; }
std::string id_path(std::string_view prog) { return std::string(prog) + "\\Bank\\Access\\ID.MDB"; }
std::string past_path(std::string_view prog) { return std::string(prog) + "\\bank\\access\\PAST.mdb"; }
std::string id_row_path(std::string_view prog) { return std::string(prog) + "\\bank\\access\\ID.mdb"; }

std::unique_ptr<BankLock> BankLock::acquire(const fs::path& root, std::string* reason) {
  Fd fd = Fd::open(root, O_RDONLY | O_DIRECTORY);
  if (!fd) {
    if (reason != nullptr) *reason = std::strerror(errno);
    return nullptr;
  }
  if (::flock(fd.get(), LOCK_EX | LOCK_NB) != 0) {
    const int err = errno;
    if (reason != nullptr) *reason = err == EWOULDBLOCK ? std::string() : std::string(std::strerror(err));
    return nullptr;
  }
  return std::unique_ptr<BankLock>(new BankLock(std::move(fd)));
}

// Closing the descriptor lets the lock go with it.
BankLock::~BankLock() = default;

bool bank_is_new(const fs::path& root) {
  std::error_code ec;
  if (!fs::exists(root, ec)) return true;
  for (fs::directory_iterator it(root, ec), done; !ec && it != done; it.increment(ec))
    if (upper(it->path().filename().string()) == "VARDOK") return false;
  return true;
}

std::string database_damage(const fs::path& file) {
  std::error_code ec;
  const auto st = fs::status(file, ec);
  if (fs::is_directory(st)) return "a folder stands in its place";
  if (!fs::is_regular_file(st)) return "it is not a file";
  if (fs::file_size(file, ec) == 0) return "the file is empty";
  try {
    Database db(file, Database::Mode::ReadOnly);
    auto check = db.prepare("PRAGMA quick_check");
    if (!check.step()) return "the check gave no answer";
    const std::string first = check.text(0);
    return first == "ok" ? std::string() : "quick check: " + first;
  } catch (const std::exception& e) {
    return e.what();
  }
}

}  // namespace obsdesk
