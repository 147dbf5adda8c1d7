#include "bank/journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>
#include <stdexcept>

#include "bank/fd.h"
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

// A file the journal writes: opening it is announced to the seam, and a file
// that cannot be opened or closed is told in the runtime's words.
class OpenFile {
 public:
  OpenFile(FileSeam* seam, const fs::path& file, int flags) : file_(file) {
    announce(seam, FileCall::Open, file);
    fd_ = Fd::open(file, flags);
    if (!fd_) file_error(file, errno);
  }
  int get() const { return fd_.get(); }
  void close() {
    if (const int err = fd_.close(); err != 0) file_error(file_, err);
  }

 private:
  fs::path file_;
  Fd fd_;
};

void write_all(FileSeam* seam, const OpenFile& fd, const fs::path& file, std::string_view bytes) {
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

void cut(FileSeam* seam, const OpenFile& fd, const fs::path& file, std::int64_t length) {
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
  OpenFile fd(seam, tmp, O_WRONLY | O_CREAT | O_TRUNC);
  write_all(seam, fd, tmp, bytes);
  fd.close();
}

void rename_into_place(FileSeam* seam, const fs::path& file) {
  const fs::path tmp = temporary_of(file);
  announce(seam, FileCall::Rename, file);
  if (::rename(tmp.c_str(), file.c_str()) != 0) file_error(file, errno);
}

// Puts one append back: the file cut to its length before, or removed when the
// intent made it. A file already shorter is left as it is. True when the file
// was changed.
bool undo_append(FileSeam* seam, const SaveJournal::Op& op) {
  const std::int64_t now = length_of(op.file);
  if (now < 0) return false;
  if (op.before < 0) {
    remove_file(seam, op.file);
    return true;
  }
  if (now <= op.before) return false;
  OpenFile fd(seam, op.file, O_WRONLY);
  cut(seam, fd, op.file, op.before);
  fd.close();
  return true;
}

// True when the file holds exactly these bytes at this offset.
bool stands_at(const fs::path& file, std::int64_t offset, std::string_view bytes) {
  const Fd fd = Fd::open(file, O_RDONLY);
  if (!fd) return false;
  std::string got(bytes.size(), '\0');
  std::size_t done = 0;
  while (done < got.size()) {
    const ssize_t n = ::pread(fd.get(), got.data() + done, got.size() - done, static_cast<off_t>(offset) + static_cast<off_t>(done));
    if (n <= 0) break;
    done += static_cast<std::size_t>(n);
  }
  return done == got.size() && got == bytes;
}

bool holds_exactly(const fs::path& file, std::string_view bytes) {
  return length_of(file) == static_cast<std::int64_t>(bytes.size()) && stands_at(file, 0, bytes);
}

// Makes one append again: nothing when its bytes stand in place, else the file
// cut back to its length before and the bytes written. A file found shorter
// than that (something else cut it) gets the bytes at its end: nothing is
// invented to fill the gap.
bool redo_append(FileSeam* seam, const SaveJournal::Op& op) {
  const std::int64_t before = std::max<std::int64_t>(op.before, 0);
  if (stands_at(op.file, before, op.bytes)) return false;
  OpenFile fd(seam, op.file, O_WRONLY | O_CREAT);
  const std::int64_t now = length_of(op.file);
  if (now > before) cut(seam, fd, op.file, before);
  announce(seam, FileCall::Write, op.file);
  if (::lseek(fd.get(), 0, SEEK_END) < 0) file_error(op.file, errno);
  write_all(nullptr, fd, op.file, op.bytes);
  fd.close();
  return true;
}

bool redo_replace(FileSeam* seam, const SaveJournal::Op& op) {
  if (holds_exactly(op.file, op.bytes)) {
    const bool stray = length_of(temporary_of(op.file)) >= 0;
    remove_file(seam, temporary_of(op.file));
    return stray;
  }
  write_temporary(seam, op.file, op.bytes);
  rename_into_place(seam, op.file);
  return true;
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
    OpenFile fd(seam_, op.file, O_WRONLY | O_CREAT | O_APPEND);
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

// An intent is one row: its operations packed one after another, each as its
// kind ('a' or 'r'), the file's name, the length before and the bytes, the
// numbers in eight octets, least significant first. One row a save keeps the
// pages its commit writes to the few the bytes need.
void put_number(std::string& out, std::int64_t n) {
  for (int i = 0; i < 8; ++i) out.push_back(static_cast<char>((static_cast<std::uint64_t>(n) >> (8 * i)) & 0xff));
}

void put_chunk(std::string& out, std::string_view bytes) {
  put_number(out, static_cast<std::int64_t>(bytes.size()));
  out.append(bytes);
}

std::string packed(const fs::path& root, const SaveJournal& j) {
  std::size_t size = 0;
  for (const SaveJournal::Op& op : j.ops()) size += 64 + op.file.native().size() + op.bytes.size();
  std::string out;
  out.reserve(size);
  for (const SaveJournal::Op& op : j.ops()) {
    out.push_back(op.kind == SaveJournal::Kind::Append ? 'a' : 'r');
    put_chunk(out, stored_name(root, op.file));
    put_number(out, op.before);
    put_chunk(out, op.bytes);
  }
  return out;
}

class Unpacker {
 public:
  explicit Unpacker(std::string_view bytes) : in_(bytes) {}
  bool done() const { return at_ == in_.size(); }
  SaveJournal::Op op(const fs::path& root) {
    const char kind = take(1)[0];
    if (kind != 'a' && kind != 'r') damaged();
    const std::string file(chunk());
    const std::int64_t before = number();
    return {kind == 'a' ? SaveJournal::Kind::Append : SaveJournal::Kind::Replace, file_of(root, file), before,
            std::string(chunk())};
  }

 private:
  [[noreturn]] static void damaged() { throw BankError("the save journal of the bank is damaged"); }
  std::string_view take(std::size_t n) {
    if (n > in_.size() - at_) damaged();
    const std::string_view out = in_.substr(at_, n);
    at_ += n;
    return out;
  }
  std::int64_t number() {
    const std::string_view b = take(8);
    std::uint64_t n = 0;
    for (int i = 7; i >= 0; --i) n = (n << 8) | static_cast<unsigned char>(b[static_cast<std::size_t>(i)]);
    return static_cast<std::int64_t>(n);
  }
  std::string_view chunk() {
    const std::int64_t n = number();
    if (n < 0) damaged();
    return take(static_cast<std::size_t>(n));
  }

  std::string_view in_;
  std::size_t at_ = 0;
};

}  // namespace

void create_journal_table(Database& db) {
  db.exec(
      "CREATE TABLE IF NOT EXISTS SaveJournal (intent INTEGER PRIMARY KEY, committed INTEGER NOT NULL, "
      "ops BLOB NOT NULL)");
}

namespace {

std::int64_t insert_intent(Database& db, const fs::path& root, const SaveJournal& j, bool committed) {
  if (!db.has_table("SaveJournal")) create_journal_table(db);
  auto add = db.prepare("INSERT INTO SaveJournal (committed, ops) VALUES (?, ?)");
  add.bind(1, std::int64_t{committed ? 1 : 0}).bind_bytes(2, packed(root, j));
  add.run();
  return db.last_insert_rowid();
}

struct StoredIntent {
  std::int64_t intent;
  std::vector<SaveJournal::Op> ops;
};

std::vector<StoredIntent> read_intents(Database& db, const fs::path& root, bool committed) {
  std::vector<StoredIntent> out;
  auto st = db.prepare("SELECT intent, ops FROM SaveJournal WHERE committed = ? ORDER BY intent");
  st.bind(1, std::int64_t{committed ? 1 : 0});
  while (st.step()) {
    StoredIntent s{st.integer(0), {}};
    const std::string ops = st.bytes(1);
    for (Unpacker in(ops); !in.done();) s.ops.push_back(in.op(root));
    out.push_back(std::move(s));
  }
  return out;
}

}  // namespace

std::int64_t record_provisional(Database& db, const fs::path& root, const SaveJournal& j) {
  return insert_intent(db, root, j, false);
}

Commit record_committed(Database& db, const fs::path& root, const SaveJournal& j) {
  Commit c;
  if (db.has_table("SaveJournal")) {
    db.prepare(
          "DELETE FROM SaveJournal WHERE committed = 1 AND intent < "
          "(SELECT max(intent) FROM SaveJournal WHERE committed = 1)")
        .run();
    auto first = db.prepare("SELECT min(intent) FROM SaveJournal WHERE committed = 0");
    if (first.step() && !first.is_null(0)) c.first_joined = first.integer(0);
    if (c.first_joined > 0) db.prepare("UPDATE SaveJournal SET committed = 1 WHERE committed = 0").run();
  }
  c.intent = insert_intent(db, root, j, true);
  if (c.first_joined == 0) c.first_joined = c.intent;
  return c;
}

void drop_intent(Database& db, std::int64_t intent) {
  auto st = db.prepare("DELETE FROM SaveJournal WHERE intent = ?");
  st.bind(1, intent);
  st.run();
}

void withdraw_intent(Database& db, const Commit& c) {
  drop_intent(db, c.intent);
  auto lines = db.prepare("UPDATE SaveJournal SET committed = 0 WHERE intent >= ? AND intent < ?");
  lines.bind(1, c.first_joined).bind(2, c.intent);
  lines.run();
}

Recovery finish_pending(Database& db, const fs::path& root, FileSeam* seam, bool at_start) {
  Recovery r;
  if (!db.has_table("SaveJournal")) return r;
  for (const StoredIntent& s : read_intents(db, root, true)) {
    bool wrote = false;
    for (const SaveJournal::Op& op : s.ops)
      wrote = (op.kind == SaveJournal::Kind::Append ? redo_append(seam, op) : redo_replace(seam, op)) || wrote;
    if (wrote) ++r.redone;
  }
  if (!at_start) return r;
  const auto provisional = read_intents(db, root, false);
  for (auto s = provisional.rbegin(); s != provisional.rend(); ++s) {
    bool wrote = false;
    for (auto op = s->ops.rbegin(); op != s->ops.rend(); ++op) {
      if (op->kind == SaveJournal::Kind::Append) {
        wrote = undo_append(seam, *op) || wrote;
      } else {
        wrote = length_of(temporary_of(op->file)) >= 0 || wrote;
        remove_file(seam, temporary_of(op->file));
      }
    }
    if (wrote) ++r.undone;
  }
  // What was put back reaches the disk before its record goes.
  if (r.undone > 0) flush_files(root, seam);
  db.exec("DELETE FROM SaveJournal WHERE committed = 0");
  return r;
}

void flush_files(const fs::path& root, FileSeam* seam) {
  announce(seam, FileCall::Flush, root);
  Fd fd = Fd::open(root, O_RDONLY | O_DIRECTORY);
  if (!fd) file_error(root, errno);
  if (::syncfs(fd.get()) != 0) file_error(root, errno);
  if (const int err = fd.close(); err != 0) file_error(root, err);
}

}  // namespace obsdesk
