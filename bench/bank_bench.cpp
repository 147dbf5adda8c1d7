// The recordset on a KASHF table of 200,000 rows, about 23 years of hourly
// reports: a committed append, a step next and back, and a find by key text.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "bank/bank.h"
#include "screens/bank_tables.h"
#include "bank/recordset.h"
#include "bank/sqlite.h"
#include "screens/record.h"

namespace {

namespace fs = std::filesystem;
constexpr int kRows = 200000;

std::string key_of(int i) {
  // Hourly keys from 2001-01-01 on, months of 30 days for simplicity.
  const int hour = i % 24, day = (i / 24) % 30 + 1, month = (i / 720) % 12 + 1, year = 1 + i / 8640;
  char buf[16];
  std::snprintf(buf, sizeof buf, "%02d%02d%02d%02d00", year, month, day, hour);
  return buf;
}

// The bank is built once per run in a temporary folder.
const fs::path& big_bank() {
  static const fs::path file = [] {
    std::string tmpl = (fs::temp_directory_path() / "obsdesk-bench-XXXXXX").string();
    if (::mkdtemp(tmpl.data()) == nullptr) std::abort();
    static const fs::path dir = tmpl;
    std::atexit([] { fs::remove_all(dir); });
    const fs::path f = fs::path(tmpl) / "Kashf.mdb";
    obsdesk::Database db(f, obsdesk::Database::Mode::Create);
    obsdesk::create_kashf_table(db);
    const auto& cols = obsdesk::kashf_columns();
    std::string names, marks;
    for (std::size_t i = 0; i < cols.size(); ++i) {
      names += (i ? "," : "") + obsdesk::quote_name(cols[i].column);
      marks += i ? ",?" : "?";
    }
    db.exec("BEGIN");
    auto st = db.prepare("INSERT INTO KASHF (" + names + ") VALUES (" + marks + ")");
    for (int r = 0; r < kRows; ++r) {
      for (std::size_t c = 0; c < cols.size(); ++c) {
        const std::string v = cols[c].column == "yymmddttgg" ? key_of(r) : std::string(5, 'x');
        st.bind(static_cast<int>(c + 1), v);
      }
      st.run();
      st.reset();
    }
    db.exec("COMMIT");
    return f;
  }();
  return file;
}

void BM_AppendAndCommit(benchmark::State& state) {
  obsdesk::Recordset rs;
  rs.open(big_bank(), "KASHF");
  int n = 0;
  for (auto _ : state) {
    rs.add_new();
    for (const auto& c : obsdesk::kashf_columns()) rs.set(c.column, "12345");
    rs.set("yymmddttgg", "99" + std::to_string(n++));
    rs.update();
  }
}
BENCHMARK(BM_AppendAndCommit)->Unit(benchmark::kMillisecond);

void BM_MoveNextThenPrevious(benchmark::State& state) {
  obsdesk::Recordset rs;
  rs.open(big_bank(), "KASHF");
  rs.move_last();
  rs.move_previous();
  for (auto _ : state) {
    rs.move_next();
    rs.move_previous();
    benchmark::DoNotOptimize(rs.get("yymmddttgg"));
  }
}
BENCHMARK(BM_MoveNextThenPrevious)->Unit(benchmark::kMicrosecond);

void BM_FindFirstLike(benchmark::State& state) {
  obsdesk::Recordset rs;
  rs.open(big_bank(), "KASHF");
  // A key near the end of the table, and one that is not there at all.
  const std::string pattern = state.range(0) ? "*" + key_of(kRows - 100).substr(0, 8) + "*" : "*77777777*";
  for (auto _ : state) benchmark::DoNotOptimize(rs.find_first("yymmddttgg", pattern));
}
BENCHMARK(BM_FindFirstLike)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
