#include "bank/sqlite.h"

#include <sqlite3.h>

namespace obsdesk {

Database::Database(const std::filesystem::path& file, Mode mode) : file_(file) {
  if (mode != Mode::Create && !std::filesystem::exists(file))
    throw BankError("database not found: " + file.string());
  const int flags = (mode == Mode::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) |
                    (mode == Mode::Create ? SQLITE_OPEN_CREATE : 0) | SQLITE_OPEN_NOMUTEX;
  if (sqlite3_open_v2(file.c_str(), &db_, flags, nullptr) != SQLITE_OK) {
    std::string msg = db_ ? sqlite3_errmsg(db_) : "out of memory";
    sqlite3_close(db_);
    db_ = nullptr;
    throw BankError("cannot open database " + file.string() + ": " + msg);
  }
  sqlite3_busy_timeout(db_, 5000);
  // Probe the file once so that a damaged one is told at opening, by its name.
  try {
    exec("PRAGMA schema_version");
    if (mode == Mode::ReadOnly) return;
    exec("PRAGMA journal_mode=WAL");
    exec("PRAGMA synchronous=FULL");
  } catch (...) {
    close();
    throw;
  }
}

Database::~Database() { close(); }

void Database::close() {
  for (auto& [sql, kept] : kept_) sqlite3_finalize(kept.stmt);
  kept_.clear();
  sqlite3_close(db_);
  db_ = nullptr;
}

Database::Database(Database&& other) noexcept
    : db_(other.db_), file_(std::move(other.file_)), kept_(std::move(other.kept_)) {
  other.db_ = nullptr;
  other.kept_.clear();
}

Database& Database::operator=(Database&& other) noexcept {
  if (this != &other) {
    close();
    db_ = other.db_;
    file_ = std::move(other.file_);
    kept_ = std::move(other.kept_);
    other.db_ = nullptr;
    other.kept_.clear();
  }
  return *this;
}

void Database::fail(std::string_view what) const {
  std::string msg = db_ ? sqlite3_errmsg(db_) : "database not open";
  throw BankError(std::string(what) + " " + file_.string() + ": " + msg);
}

void Database::exec(std::string_view sql) {
  if (!db_) throw BankError("database not open");
  char* err = nullptr;
  if (sqlite3_exec(db_, std::string(sql).c_str(), nullptr, nullptr, &err) != SQLITE_OK) {
    std::string msg = err ? err : "error";
    sqlite3_free(err);
    throw BankError("database error in " + file_.string() + ": " + msg);
  }
}

Transaction::Transaction(Database& db) : db_(db) { db_.prepare("BEGIN IMMEDIATE").run(); }

Transaction::~Transaction() {
  if (!open_) return;
  try {
    db_.prepare("ROLLBACK").run();
  } catch (const std::exception&) {
    // A rollback that fails leaves the transaction to SQLite, which ends it
    // when the connection closes; the cause is already on its way up.
  }
}

void Transaction::commit() {
  db_.prepare("COMMIT").run();
  open_ = false;
}

Statement Database::prepare(std::string_view sql) {
  if (!db_) throw BankError("database not open");
  // A statement still stepping elsewhere (a walk inside a walk) gets a fresh one of
  // its own; so does any SQL past the few dozen a connection keeps.
  constexpr std::size_t kKeptMost = 64;
  auto it = kept_.find(std::string(sql));
  if (it != kept_.end() && !it->second.in_use) {
    it->second.in_use = true;
    return Statement(*this, it->second.stmt, &it->second.in_use);
  }
  const bool keep = it == kept_.end() && kept_.size() < kKeptMost;
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v3(db_, sql.data(), static_cast<int>(sql.size()), keep ? SQLITE_PREPARE_PERSISTENT : 0,
                         &stmt, nullptr) != SQLITE_OK)
    fail("database error in");
  if (!keep) return Statement(*this, stmt);
  Kept& kept = kept_[std::string(sql)];
  kept = {stmt, true};
  return Statement(*this, stmt, &kept.in_use);
}

std::int64_t Database::last_insert_rowid() const { return sqlite3_last_insert_rowid(db_); }

bool Database::has_table(std::string_view table) {
  auto st = prepare("SELECT 1 FROM sqlite_master WHERE type='table' AND name=? COLLATE NOCASE");
  st.bind(1, table);
  return st.step();
}

std::vector<std::string> Database::table_columns(std::string_view table) {
  std::vector<std::string> cols;
  auto st = prepare("SELECT name FROM pragma_table_info(?)");
  st.bind(1, table);
  while (st.step()) cols.push_back(st.text(0));
  return cols;
}

Statement::~Statement() {
  if (!in_use_) {
    sqlite3_finalize(stmt_);
    return;
  }
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
  *in_use_ = false;
}

Statement& Statement::bind(int index, std::string_view text) {
  if (sqlite3_bind_text(stmt_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT) !=
      SQLITE_OK)
    db_->fail("database error in");
  return *this;
}

Statement& Statement::bind(int index, std::int64_t value) {
  if (sqlite3_bind_int64(stmt_, index, value) != SQLITE_OK) db_->fail("database error in");
  return *this;
}

Statement& Statement::bind_bytes(int index, std::string_view bytes) {
  if (sqlite3_bind_blob64(stmt_, index, bytes.data(), bytes.size(), SQLITE_TRANSIENT) != SQLITE_OK)
    db_->fail("database error in");
  return *this;
}

bool Statement::step() {
  const int rc = sqlite3_step(stmt_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  sqlite3_reset(stmt_);
  db_->fail("database error in");
}

std::string Statement::text(int column) const {
  const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(stmt_, column));
  if (!p) return {};
  return std::string(p, static_cast<std::size_t>(sqlite3_column_bytes(stmt_, column)));
}

std::string Statement::bytes(int column) const {
  const auto* p = static_cast<const char*>(sqlite3_column_blob(stmt_, column));
  if (!p) return {};
  return std::string(p, static_cast<std::size_t>(sqlite3_column_bytes(stmt_, column)));
}

std::int64_t Statement::integer(int column) const { return sqlite3_column_int64(stmt_, column); }

bool Statement::is_null(int column) const { return sqlite3_column_type(stmt_, column) == SQLITE_NULL; }

void Statement::reset() {
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
}

std::string quote_name(std::string_view name) {
  std::string out = "\"";
  for (char c : name) {
    if (c == '"') out += "\"\"";
    else out += c;
  }
  return out + "\"";
}

}  // namespace obsdesk
