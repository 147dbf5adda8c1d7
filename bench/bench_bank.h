// Banks for the benchmarks: a fresh one in a temporary folder, and its KASHF table
// filled with rows straight through SQLite, as years of saved reports.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "archive/text_archive.h"
#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/sqlite.h"
#include "screens/record.h"

namespace obsdesk::bench {

// The bank folder inside a new temporary folder (TMPDIR decides where).
inline std::filesystem::path temp_bank(const char* name) {
  std::string tmpl = (std::filesystem::temp_directory_path() / (std::string(name) + "-XXXXXX")).string();
  if (::mkdtemp(tmpl.data()) == nullptr) std::abort();
  return std::filesystem::path(tmpl) / "bank";
}

// A new bank whose KASHF table holds this many rows, every column of row r
// holding r modulo the given figure.
inline void fill_kashf(const std::filesystem::path& root, int reports, int modulo) {
  create_bank(root);
  if (reports == 0) return;
  Database db(resolve_bank_path(root, "VARDOK\\BANK\\OIII\\ACCESS\\Kashf.mdb"), Database::Mode::ReadWrite);
  const auto& cols = kashf_columns();
  std::string names, marks;
  for (std::size_t i = 0; i < cols.size(); ++i) {
    names += (i ? "," : "") + quote_name(cols[i].column);
    marks += i ? ",?" : "?";
  }
  db.exec("BEGIN");
  auto st = db.prepare("INSERT INTO KASHF (" + names + ") VALUES (" + marks + ")");
  for (int r = 0; r < reports; ++r) {
    for (std::size_t c = 0; c < cols.size(); ++c) st.bind(static_cast<int>(c + 1), std::to_string(r % modulo));
    st.run();
    st.reset();
  }
  db.exec("COMMIT");
  flush_bank(root);  // on the disk already, as a station's archive is
}

}  // namespace obsdesk::bench
