#include "bank/data_control.h"

#include "core/engine.h"

namespace obsdesk {

void DataControl::bind(Control& box, std::string column) { bindings_.emplace_back(&box, std::move(column)); }

void DataControl::open(Engine& ws, const std::filesystem::path& file, std::string_view table) {
  for (const auto& damaged : ws.damaged_databases) {
    std::error_code ec;
    if (file == damaged || std::filesystem::equivalent(file, damaged, ec))
      throw BankError("database damaged, left unopened: " + file.string());
  }
  rs.open(file, table);
  for (const auto& [box, column] : bindings_)
    if (!rs.has_column(column))
      throw BankError("column " + column + " not found in table " + std::string(table) + " of " +
                      file.string());
  show(ws);
}

void DataControl::show(Engine& ws) {
  const bool blank = rs.edit_mode() == Recordset::EditMode::None && (rs.eof() || rs.bof());
  for (const auto& [box, column] : bindings_) ws.set(*box, blank ? std::string() : rs.get(column));
}

void DataControl::write() {
  for (const auto& [box, column] : bindings_) rs.set(column, box->text);
}

void DataControl::add_new(Engine& ws) {
  rs.add_new();
  show(ws);
}

void DataControl::update() {
  write();
  rs.update();
}

void DataControl::move_first(Engine& ws) {
  rs.move_first();
  show(ws);
}

void DataControl::move_last(Engine& ws) {
  rs.move_last();
  show(ws);
}

void DataControl::move_next(Engine& ws) {
  rs.move_next();
  show(ws);
}

void DataControl::move_previous(Engine& ws) {
  rs.move_previous();
  show(ws);
}

void DataControl::go_to(Engine& ws, std::int64_t bookmark) {
  rs.go_to(bookmark);
  show(ws);
}

void DataControl::refresh(Engine& ws) {
  rs.requery();
  show(ws);
}

}  // namespace obsdesk
