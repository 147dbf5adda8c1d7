// A data control: a recordset with boxes bound to its columns. Moving in the
// recordset shows the row in the bound boxes (each box's change rule runs, as it
// would when a person saw the row appear); updating writes the boxes back.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "bank/recordset.h"

namespace obsdesk {

class Engine;
struct Control;

class DataControl {
 public:
  explicit DataControl(std::string control_name) : name(std::move(control_name)) {}
  DataControl(const DataControl&) = delete;
  DataControl& operator=(const DataControl&) = delete;

  const std::string name;
  std::string caption;
  Recordset rs;

  void bind(Control& box, std::string column);
  const std::vector<std::pair<Control*, std::string>>& bindings() const { return bindings_; }

  // Opens the table and shows its first row. Every bound column must exist.
  void open(Engine& ws, const std::filesystem::path& file, std::string_view table);
  // The bound boxes take the current row; blank when there is none.
  void show(Engine& ws);
  // The bound boxes' texts go into the row being edited or added.
  void write();

  void add_new(Engine& ws);  // a new row, the bound boxes blank
  void update();                  // write() then update
  void move_first(Engine& ws);
  void move_last(Engine& ws);
  void move_next(Engine& ws);
  void move_previous(Engine& ws);
  void go_to(Engine& ws, std::int64_t bookmark);
  void refresh(Engine& ws);  // read anew, first row

 private:
  std::vector<std::pair<Control*, std::string>> bindings_;
};

}  // namespace obsdesk
