// The recordset: what the rules do with a table. Open a table by path; move
// first, last, next, previous; the end tests; bookmarks; add a new row that lives
// in memory until it is updated; edit; update (one transaction); delete; find
// first and next with a "like" pattern ("*" for any text, "?" for one character);
// requery. Rows are walked in the order they were added (rowid order).
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bank/sqlite.h"

namespace obsdesk {

class Recordset {
 public:
  enum class EditMode { None, Edit, Add };

  Recordset() = default;
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  // Opens the table and stands on its first row (EOF and BOF when it is empty).
  void open(const std::filesystem::path& file, std::string_view table);
  void close();
  bool is_open() const { return db_.is_open(); }
  // See Database::commit_without_waiting (the reports' table, whose save ends in
  // one flush of everything it wrote).
  void commit_without_waiting() { db_.commit_without_waiting(); }
  const std::filesystem::path& file() const { return db_.file(); }
  // The table's database, for work that must commit in one transaction with an
  // update (the save journal beside a report's row).
  Database& database() { return db_; }
  const std::string& table() const { return table_; }
  const std::vector<std::string>& columns() const { return cols_; }
  bool has_column(std::string_view column) const { return column_index(column) >= 0; }

  bool eof() const { return eof_; }
  bool bof() const { return bof_; }
  void move_first();
  void move_last();
  void move_next();
  void move_previous();

  // The value of a column in the current row, or in the row being edited or added.
  std::string get(std::string_view column) const;
  void set(std::string_view column, std::string value);

  std::int64_t bookmark() const;
  void go_to(std::int64_t bookmark);

  void add_new();
  void edit();
  // Writes the row being edited or added in one transaction. After an added row
  // the current row stays the one that was current before.
  void update();
  void cancel_update();
  // Deletes the current row; its values stay readable until the next move.
  void remove();

  // False, and the current row unchanged, when nothing matches.
  [[nodiscard]] bool find_first(std::string_view column, std::string_view like_pattern);
  [[nodiscard]] bool find_next(std::string_view column, std::string_view like_pattern);

  // Reads the table anew and stands on its first row.
  void requery();
  std::int64_t record_count();
  EditMode edit_mode() const { return mode_; }
  std::int64_t last_modified() const { return last_modified_; }

 private:
  int column_index(std::string_view column) const;
  int checked_index(std::string_view column) const;
  void stand_on(std::optional<std::int64_t> rowid, bool forward);
  std::optional<std::int64_t> query_rowid(std::string_view sql, std::optional<std::int64_t> arg,
                                          const std::optional<std::string>& pattern = std::nullopt);
  std::optional<std::int64_t> find_from(std::string_view column, std::string_view pattern, std::int64_t after);
  void load(std::int64_t rowid);
  void require_current() const;

  Database db_;
  std::string table_;
  std::vector<std::string> cols_;
  std::vector<std::string> upper_cols_;  // the names as matched: a column is found in any case
  std::int64_t current_ = 0;
  bool eof_ = true;
  bool bof_ = true;
  std::vector<std::string> row_;
  std::vector<std::string> buffer_;
  EditMode mode_ = EditMode::None;
  std::int64_t last_modified_ = 0;
};

// The old "like" pattern as SQL LIKE with "\" as escape: "*" any text, "?" one
// character, every other character itself.
std::string like_to_sql(std::string_view pattern);

}  // namespace obsdesk
