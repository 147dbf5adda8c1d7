#include "bank/journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <stdexcept>

#include "bank/sqlite.h"

namespace obsdesk {

namespace fs = std::filesystem;

void file_error(const fs::path& file, int err) {
  const char* what = nullptr;
  switch (err) {
    case ENOENT:
    case ENOTDIR: what = "Path not found"; break;
    case EACCES:
    case EPERM:
    case EROFS: what = "Permission denied"; break;
    case ENOSPC:
    case EDQUOT: what = "Disk full"; break;
    default: what = std::strerror(err); break;
  }
  throw std::runtime_error(std::string(what) + ": " + file.string());
}

fs::path temporary_of(const fs::path& file) { return fs::path(file.string() + ".new"); }

namespace {

// The file's length, -1 when there is no such file.
std::int64_t length_of(const fs::path& file) {
  struct stat st {};
  if (::stat(file.c_str(), &st) != 0) return -1;
  return static_cast<std::int64_t>(st.st_size);
}

// A file descriptor closed on every way out.
class Fd {
 public:
  Fd(FileSeam* seam, const fs::path& file, int flags) : file_(file) {
    announce(seam, FileCall::Open, file);
    fd_ = ::open(file.c_str(), flags | O_CLOEXEC, 0644);
    if (fd_ < 0) file_error(file, errno);
  }
  ~Fd() {
    if (fd_ >= 0) ::close(fd_);
  }
  Fd(const Fd&) = delete;
  Fd& operator=(const Fd&) = delete;
  int get() const { return fd_; }
  void close() {
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) != 0) file_error(file_, errno);
  }

 private:
  fs::path file_;
  int fd_ = -1;
};

void write_all(FileSeam* seam, const Fd& fd, const fs::path& file, std::string_view bytes) {
  announce(seam, FileCall::Write, file);
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t n = ::write(fd.get(), bytes.data() + done, bytes.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      file_error(file, errno);
    }
    done += static_cast<std::size_t>(n);
  }
}

void cut(FileSeam* seam, const Fd& fd, const fs::path& file, std::int64_t length) {
  announce(seam, FileCall::Cut, file);
  if (::ftruncate(fd.get(), static_cast<off_t>(length)) != 0) file_error(file, errno);
}

void remove_file(FileSeam* seam, const fs::path& file) {
  if (length_of(file) < 0) return;
  announce(seam, FileCall::Remove, file);
  if (::unlink(file.c_str()) != 0 && errno != ENOENT) file_error(file, errno);
}

void write_temporary(FileSeam* seam, const fs::path& file, std::string_view bytes) {
  const fs::path tmp = temporary_of(file);
  Fd fd(seam, tmp, O_WRONLY | O_CREAT | O_TRUNC);
  write_all(seam, fd, tmp, bytes);
  fd.close();
}

void rename_into_place(FileSeam* seam, const fs::path& file) {
  const fs::path tmp = temporary_of(file);
  announce(seam, FileCall::Rename, file);
  if (::rename(tmp.c_str(), file.c_str()) != 0) file_error(file, errno);
}

// Puts one append back: the file cut to its length before, or removed when the
// intent made it. A file already shorter is left as it is.
void undo_append(FileSeam* seam, const SaveJournal::Op& op) {
  const std::int64_t now = length_of(op.file);
  if (now < 0) return;
  if (op.before < 0) {
    remove_file(seam, op.file);
    return;
  }
  if (now <= op.before) return;
  Fd fd(seam, op.file, O_WRONLY);
  cut(seam, fd, op.file, op.before);
  fd.close();
}

// True when the file holds exactly these bytes at this offset.
bool stands_at(const fs::path& file, std::int64_t offset, std::string_view bytes) {
  const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return false;
  std::string got(bytes.size(), '\0');
  std::size_t done = 0;
  while (done < got.size()) {
    const ssize_t n = ::pread(fd, got.data() + done, got.size() - done, static_cast<off_t>(offset) + static_cast<off_t>(done));
    if (n <= 0) break;
    done += static_cast<std::size_t>(n);
  }
  ::close(fd);
  return done == got.size() && got == bytes;
}

bool holds_exactly(const fs::path& file, std::string_view bytes) {
  return length_of(file) == static_cast<std::int64_t>(bytes.size()) && stands_at(file, 0, bytes);
}

// Makes one append again: nothing when its bytes stand in place, else the file
// cut back to its length before and the bytes written. A file found shorter
// than that (something else cut it) gets the bytes at its end: nothing is
// invented to fill the gap.
void redo_append(FileSeam* seam, const SaveJournal::Op& op) {
  const std::int64_t before = std::max<std::int64_t>(op.before, 0);
  if (stands_at(op.file, before, op.bytes)) return;
  Fd fd(seam, op.file, O_WRONLY | O_CREAT);
  const std::int64_t now = length_of(op.file);
  if (now > before) cut(seam, fd, op.file, before);
  announce(seam, FileCall::Write, op.file);
  if (::lseek(fd.get(), 0, SEEK_END) < 0) file_error(op.file, errno);
  write_all(nullptr, fd, op.file, op.bytes);
  fd.close();
}

void redo_replace(FileSeam* seam, const SaveJournal::Op& op) {
  if (holds_exactly(op.file, op.bytes)) {
    remove_file(seam, temporary_of(op.file));
    return;
  }
  write_temporary(seam, op.file, op.bytes);
  rename_into_place(seam, op.file);
}

}  // namespace

void SaveJournal::append(const fs::path& file, std::string bytes) {
  std::int64_t before = -2;
  for (auto it = ops_.rbegin(); it != ops_.rend() && before == -2; ++it)
    if (it->kind == Kind::Append && it->file == file)
      before = std::max<std::int64_t>(it->before, 0) + static_cast<std::int64_t>(it->bytes.size());
  if (before == -2) before = length_of(file);
  ops_.push_back({Kind::Append, file, before, std::move(bytes)});
}

void SaveJournal::replace(const fs::path& file, std::string bytes) {
  ops_.push_back({Kind::Replace, file, length_of(file), std::move(bytes)});
}

void SaveJournal::write() const {
  for (const Op& op : ops_) {
    if (op.kind == Kind::Replace) {
      write_temporary(seam_, op.file, op.bytes);
      continue;
    }
    Fd fd(seam_, op.file, O_WRONLY | O_CREAT | O_APPEND);
    write_all(seam_, fd, op.file, op.bytes);
    fd.close();
  }
}

void SaveJournal::put_in_place() const {
  for (const Op& op : ops_)
    if (op.kind == Kind::Replace) rename_into_place(seam_, op.file);
}

void SaveJournal::undo() const {
  for (auto it = ops_.rbegin(); it != ops_.rend(); ++it) {
    if (it->kind == Kind::Replace) remove_file(seam_, temporary_of(it->file));
    else undo_append(seam_, *it);
  }
}

// ---- The journal table ------------------------------------------------------------

namespace {

// Kept below the bank root when the file lies there, so that a bank moved to
// another folder still finishes its intents.
std::string stored_name(const fs::path& root, const fs::path& file) {
  const fs::path rel = file.lexically_relative(root);
  if (!rel.empty() && *rel.begin() != "..") return rel.string();
  return file.string();
}

fs::path file_of(const fs::path& root, const std::string& stored) {
  const fs::path p(stored);
  return p.is_absolute() ? p : root / p;
}

std::int64_t next_intent(Database& db) {
  auto st = db.prepare("SELECT coalesce(max(intent), 0) + 1 FROM SaveJournal");
  st.step();
  return st.integer(0);
}

// The operations in their order; the table's row order is the order of every
// intent's operations and of the intents themselves.
void insert_ops(Database& db, const fs::path& root, const SaveJournal& j, std::int64_t intent, bool committed) {
  for (const SaveJournal::Op& op : j.ops()) {
    auto st = db.prepare(
        "INSERT INTO SaveJournal (intent, committed, applied, kind, file, before, bytes) "
        "VALUES (?, ?, 0, ?, ?, ?, ?)");
    st.bind(1, intent).bind(2, std::int64_t{committed ? 1 : 0});
    st.bind(3, std::string_view(op.kind == SaveJournal::Kind::Append ? "append" : "replace"));
    st.bind(4, stored_name(root, op.file)).bind(5, op.before).bind_bytes(6, op.bytes);
    st.run();
  }
}

struct StoredOp {
  std::int64_t intent;
  bool committed;
  SaveJournal::Op op;
};

std::vector<StoredOp> read_ops(Database& db, const fs::path& root, std::string_view where) {
  std::vector<StoredOp> out;
  auto st = db.prepare("SELECT intent, committed, kind, file, before, bytes FROM SaveJournal " + std::string(where) +
                       " ORDER BY rowid");
  while (st.step()) {
    const auto kind = st.text(2) == "replace" ? SaveJournal::Kind::Replace : SaveJournal::Kind::Append;
    out.push_back({st.integer(0), st.integer(1) != 0, {kind, file_of(root, st.text(3)), st.integer(4), st.bytes(5)}});
  }
  return out;
}

}  // namespace

void create_journal_table(Database& db) {
  db.exec(
      "CREATE TABLE IF NOT EXISTS SaveJournal (intent INTEGER NOT NULL, committed INTEGER NOT NULL, "
      "applied INTEGER NOT NULL, kind TEXT NOT NULL, file TEXT NOT NULL, before INTEGER NOT NULL, bytes BLOB)");
}

std::int64_t record_provisional(Database& db, const fs::path& root, const SaveJournal& j) {
  create_journal_table(db);
  const std::int64_t intent = next_intent(db);
  insert_ops(db, root, j, intent, false);
  return intent;
}

std::int64_t record_committed(Database& db, const fs::path& root, const SaveJournal& j) {
  create_journal_table(db);
  db.exec(
      "DELETE FROM SaveJournal WHERE committed = 1 AND intent < "
      "(SELECT max(intent) FROM SaveJournal WHERE committed = 1)");
  const std::int64_t intent = next_intent(db);
  // The confirmation's lines join the intent; they were written first and stand
  // first in it, and they are on the files already.
  auto joined = db.prepare("UPDATE SaveJournal SET intent = ?, committed = 1, applied = 1 WHERE committed = 0");
  joined.bind(1, intent);
  joined.run();
  insert_ops(db, root, j, intent, true);
  return intent;
}

void mark_applied(Database& db, std::int64_t intent) {
  auto st = db.prepare("UPDATE SaveJournal SET applied = 1 WHERE intent = ?");
  st.bind(1, intent);
  st.run();
}

void drop_intent(Database& db, std::int64_t intent) {
  auto st = db.prepare("DELETE FROM SaveJournal WHERE intent = ?");
  st.bind(1, intent);
  st.run();
}

void withdraw_intent(Database& db, std::int64_t intent) {
  auto own = db.prepare("DELETE FROM SaveJournal WHERE intent = ? AND applied = 0");
  own.bind(1, intent);
  own.run();
  auto lines = db.prepare("UPDATE SaveJournal SET committed = 0 WHERE intent = ?");
  lines.bind(1, intent);
  lines.run();
}

bool has_unapplied(Database& db) {
  if (!db.has_table("SaveJournal")) return false;
  auto st = db.prepare("SELECT 1 FROM SaveJournal WHERE committed = 1 AND applied = 0 LIMIT 1");
  return st.step();
}

Recovery finish_pending(Database& db, const fs::path& root, FileSeam* seam, bool forget) {
  Recovery r;
  if (!db.has_table("SaveJournal")) return r;
  const auto committed = read_ops(db, root, forget ? "WHERE committed = 1" : "WHERE committed = 1 AND applied = 0");
  std::int64_t last = 0;
  for (const StoredOp& s : committed) {
    if (s.op.kind == SaveJournal::Kind::Append) redo_append(seam, s.op);
    else redo_replace(seam, s.op);
    if (s.intent != last) ++r.redone;
    last = s.intent;
  }
  if (!forget) {
    db.exec("UPDATE SaveJournal SET applied = 1 WHERE committed = 1");
    return r;
  }
  const auto provisional = read_ops(db, root, "WHERE committed = 0");
  last = 0;
  for (auto it = provisional.rbegin(); it != provisional.rend(); ++it) {
    if (it->op.kind == SaveJournal::Kind::Append) undo_append(seam, it->op);
    else remove_file(seam, temporary_of(it->op.file));
    if (it->intent != last) ++r.undone;
    last = it->intent;
  }
  if (r.redone + r.undone > 0 || !committed.empty()) flush_files(root, seam);
  db.exec("DELETE FROM SaveJournal");
  return r;
}

void flush_files(const fs::path& root, FileSeam* seam) {
  announce(seam, FileCall::Flush, root);
  const int fd = ::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) file_error(root, errno);
  if (::syncfs(fd) != 0) {
    const int err = errno;
    ::close(fd);
    file_error(root, err);
  }
  ::close(fd);
}

}  // namespace obsdesk
