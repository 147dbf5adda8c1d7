#include "bank/recordset.h"

#include <limits>

#include "core/textnum.h"

namespace obsdesk {

namespace {
const char* kNoCurrent = "No current record.";
}

std::string like_to_sql(std::string_view pattern) {
  std::string out;
  for (char c : pattern) {
    switch (c) {
      case '*': out += '%'; break;
      case '?': out += '_'; break;
      case '%': case '_': case '\\': out += '\\'; out += c; break;
      default: out += c;
    }
  }
  return out;
}

void Recordset::open(const std::filesystem::path& file, std::string_view table) {
  close();
  Database db(file, Database::Mode::ReadWrite);
  if (!db.has_table(table))
    throw BankError("table " + std::string(table) + " not found in " + file.string());
  cols_ = db.table_columns(table);
  upper_cols_.clear();
  for (const auto& c : cols_) upper_cols_.push_back(upper(c));
  table_ = std::string(table);
  db_ = std::move(db);
  stand_on(query_rowid("ORDER BY rowid LIMIT 1", std::nullopt), true);
  bof_ = eof_;
}

void Recordset::close() {
  db_ = Database();
  table_.clear();
  cols_.clear();
  upper_cols_.clear();
  row_.clear();
  buffer_.clear();
  current_ = 0;
  eof_ = bof_ = true;
  mode_ = EditMode::None;
}

int Recordset::column_index(std::string_view column) const {
  for (std::size_t i = 0; i < cols_.size(); ++i)
    if (cols_[i] == column) return static_cast<int>(i);
  const std::string wanted = upper(column);
  for (std::size_t i = 0; i < upper_cols_.size(); ++i)
    if (upper_cols_[i] == wanted) return static_cast<int>(i);
  return -1;
}

int Recordset::checked_index(std::string_view column) const {
  const int i = column_index(column);
  if (i < 0)
    throw BankError("column " + std::string(column) + " not found in table " + table_ + " of " +
                    db_.file().string());
  return i;
}

std::optional<std::int64_t> Recordset::query_rowid(std::string_view tail, std::optional<std::int64_t> arg,
                                                   const std::optional<std::string>& pattern) {
  auto st = db_.prepare("SELECT rowid FROM " + quote_name(table_) + " " + std::string(tail));
  int n = 1;
  if (pattern) st.bind(n++, *pattern);
  if (arg) st.bind(n, *arg);
  if (!st.step()) return std::nullopt;
  return st.integer(0);
}

void Recordset::load(std::int64_t rowid) {
  auto st = db_.prepare("SELECT * FROM " + quote_name(table_) + " WHERE rowid=?");
  st.bind(1, rowid);
  if (!st.step()) throw BankError(kNoCurrent);
  row_.assign(cols_.size(), {});
  for (std::size_t i = 0; i < cols_.size(); ++i) row_[i] = st.text(static_cast<int>(i));
  current_ = rowid;
}

// Stands on a row found by a move, or past the end in the direction of the move.
void Recordset::stand_on(std::optional<std::int64_t> rowid, bool forward) {
  mode_ = EditMode::None;
  if (rowid) {
    load(*rowid);
    eof_ = bof_ = false;
  } else if (forward) {
    eof_ = true;
  } else {
    bof_ = true;
  }
}

void Recordset::move_first() {
  if (!is_open()) throw BankError("recordset not open");
  stand_on(query_rowid("ORDER BY rowid LIMIT 1", std::nullopt), true);
  if (eof_) bof_ = true;
}

void Recordset::move_last() {
  if (!is_open()) throw BankError("recordset not open");
  stand_on(query_rowid("ORDER BY rowid DESC LIMIT 1", std::nullopt), false);
  if (bof_) eof_ = true;
}

void Recordset::move_next() {
  if (!is_open()) throw BankError("recordset not open");
  if (eof_) throw BankError(kNoCurrent);
  if (bof_ && current_ == 0) {
    move_first();
    return;
  }
  if (bof_) {
    // Standing before the first row: the next one is the first.
    stand_on(query_rowid("WHERE rowid>=? ORDER BY rowid LIMIT 1", current_), true);
    return;
  }
  stand_on(query_rowid("WHERE rowid>? ORDER BY rowid LIMIT 1", current_), true);
}

void Recordset::move_previous() {
  if (!is_open()) throw BankError("recordset not open");
  if (bof_) throw BankError(kNoCurrent);
  if (eof_) {
    stand_on(query_rowid("WHERE rowid<=? ORDER BY rowid DESC LIMIT 1", current_), false);
    return;
  }
  stand_on(query_rowid("WHERE rowid<? ORDER BY rowid DESC LIMIT 1", current_), false);
}

void Recordset::require_current() const {
  if (!is_open()) throw BankError("recordset not open");
  if (mode_ == EditMode::None && (eof_ || bof_)) throw BankError(kNoCurrent);
}

std::string Recordset::get(std::string_view column) const {
  const int i = checked_index(column);
  if (mode_ != EditMode::None) return buffer_[static_cast<std::size_t>(i)];
  require_current();
  return row_[static_cast<std::size_t>(i)];
}

void Recordset::set(std::string_view column, std::string value) {
  const int i = checked_index(column);
  if (mode_ == EditMode::None) throw BankError("Update or CancelUpdate without AddNew or Edit.");
  buffer_[static_cast<std::size_t>(i)] = std::move(value);
}

std::int64_t Recordset::bookmark() const {
  require_current();
  return current_;
}

void Recordset::go_to(std::int64_t bm) {
  if (!is_open()) throw BankError("recordset not open");
  mode_ = EditMode::None;
  load(bm);
  eof_ = bof_ = false;
}

void Recordset::add_new() {
  if (!is_open()) throw BankError("recordset not open");
  buffer_.assign(cols_.size(), {});
  mode_ = EditMode::Add;
}

void Recordset::edit() {
  require_current();
  buffer_ = row_;
  mode_ = EditMode::Edit;
}

void Recordset::update() {
  if (mode_ == EditMode::None) throw BankError("Update or CancelUpdate without AddNew or Edit.");
  // A row edited back to what it holds is not written again: the save's steps
  // store the past-hours row at confirmation and again at the save.
  if (mode_ == EditMode::Edit && buffer_ == row_) {
    last_modified_ = current_;
    mode_ = EditMode::None;
    return;
  }
  std::string sql;
  if (mode_ == EditMode::Add) {
    std::string names, marks;
    for (std::size_t i = 0; i < cols_.size(); ++i) {
      names += (i ? "," : "") + quote_name(cols_[i]);
      marks += i ? ",?" : "?";
    }
    sql = "INSERT INTO " + quote_name(table_) + " (" + names + ") VALUES (" + marks + ")";
  } else {
    std::string sets;
    for (std::size_t i = 0; i < cols_.size(); ++i) sets += (i ? "," : "") + quote_name(cols_[i]) + "=?";
    sql = "UPDATE " + quote_name(table_) + " SET " + sets + " WHERE rowid=?";
  }
  auto st = db_.prepare(sql);
  int n = 1;
  for (const auto& v : buffer_) st.bind(n++, v);
  if (mode_ == EditMode::Edit) st.bind(n, current_);
  st.run();
  if (mode_ == EditMode::Add) {
    last_modified_ = db_.last_insert_rowid();
  } else {
    last_modified_ = current_;
    row_ = buffer_;
  }
  mode_ = EditMode::None;
}

void Recordset::cancel_update() { mode_ = EditMode::None; }

void Recordset::remove() {
  require_current();
  auto st = db_.prepare("DELETE FROM " + quote_name(table_) + " WHERE rowid=?");
  st.bind(1, current_);
  st.run();
}

// The first matching row after a rowid. The "+" keeps SQLite from walking the
// table by rowid: with an index on the column it scans the index instead, which
// is far smaller than the rows (15 ms against 85 ms on 200,000 reports).
std::optional<std::int64_t> Recordset::find_from(std::string_view column, std::string_view pattern,
                                                 std::int64_t after) {
  checked_index(column);
  auto st = db_.prepare("SELECT rowid FROM " + quote_name(table_) + " WHERE " + quote_name(column) +
                        " LIKE ? ESCAPE '\\' AND +rowid>? ORDER BY +rowid LIMIT 1");
  st.bind(1, like_to_sql(pattern)).bind(2, after);
  if (!st.step()) return std::nullopt;
  return st.integer(0);
}

bool Recordset::find_first(std::string_view column, std::string_view pattern) {
  const auto found = find_from(column, pattern, std::numeric_limits<std::int64_t>::min());
  if (!found) return false;
  go_to(*found);
  return true;
}

bool Recordset::find_next(std::string_view column, std::string_view pattern) {
  if (eof_) return false;
  const auto found = find_from(column, pattern, bof_ ? current_ - 1 : current_);
  if (!found) return false;
  go_to(*found);
  return true;
}

void Recordset::requery() { move_first(); }

std::int64_t Recordset::record_count() {
  auto st = db_.prepare("SELECT count(*) FROM " + quote_name(table_));
  st.step();
  return st.integer(0);
}

}  // namespace obsdesk
