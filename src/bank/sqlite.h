// A thin owner of SQLite handles. Every bank database is one SQLite file with
// TEXT columns; failures become BankError with the file's name in the message.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace obsdesk {

class BankError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Statement;

class Database {
 public:
  // ReadOnly opens without a write of any kind: the look at a file that may be
  // damaged.
  enum class Mode { ReadWrite, Create, ReadOnly };
  Database() = default;
  Database(const std::filesystem::path& file, Mode mode);
  ~Database();
  Database(Database&& other) noexcept;
  Database& operator=(Database&& other) noexcept;
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  bool is_open() const { return db_ != nullptr; }
  // Commits then go on without waiting for the disk: whoever writes flushes the
  // bank (flush_bank) after each write that must last.
  void commit_without_waiting() { exec("PRAGMA synchronous=NORMAL"); }
  const std::filesystem::path& file() const { return file_; }
  void exec(std::string_view sql);
  // A statement ready to bind and step. The same SQL asked again while the first
  // is no longer in use gets the same prepared statement back, reset: the rules
  // run the same few statements at every report, and parsing them each time was
  // a third of the work of a save.
  Statement prepare(std::string_view sql);
  std::int64_t last_insert_rowid() const;
  bool has_table(std::string_view table);
  std::vector<std::string> table_columns(std::string_view table);
  [[noreturn]] void fail(std::string_view what) const;

 private:
  struct Kept {
    sqlite3_stmt* stmt = nullptr;
    bool in_use = false;
  };
  void close();

  sqlite3* db_ = nullptr;
  std::filesystem::path file_;
  std::unordered_map<std::string, Kept> kept_;
};

class Statement {
 public:
  Statement(Database& db, sqlite3_stmt* stmt, bool* in_use = nullptr) : db_(&db), stmt_(stmt), in_use_(in_use) {}
  ~Statement();
  Statement(Statement&& other) noexcept : db_(other.db_), stmt_(other.stmt_), in_use_(other.in_use_) {
    other.stmt_ = nullptr;
    other.in_use_ = nullptr;
  }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  Statement& operator=(Statement&&) = delete;

  Statement& bind(int index, std::string_view text);
  Statement& bind(int index, std::int64_t value);
  // Bytes as they are, not text: the journal's contents may be any bytes.
  Statement& bind_bytes(int index, std::string_view bytes);
  // Steps once: true while a row is there.
  bool step();
  void run() { while (step()) {} }
  std::string text(int column) const;
  std::int64_t integer(int column) const;
  std::string bytes(int column) const;
  bool is_null(int column) const;
  void reset();

 private:
  Database* db_;
  sqlite3_stmt* stmt_;
  bool* in_use_;  // the database's mark on a kept statement; null for one of its own
};

// One write transaction, begun at once (it takes the write lock, so a row read in
// it is the row it writes): committed by commit(), rolled back when it goes out of
// scope uncommitted, as when an exception passes.
class Transaction {
 public:
  explicit Transaction(Database& db);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit();

 private:
  Database& db_;
  bool open_ = true;
};

// A table or column name quoted for SQL ("6HOURPAST", "type Pnegar").
std::string quote_name(std::string_view name);

}  // namespace obsdesk
