// A year of work at a 24-hour station: every hour one report is entered, coded,
// confirmed and saved through the screens, a SYN & MET at the eight synoptic
// hours (2,920) and a METAR at the others (5,840), on a bank whose KASHF table
// already holds twenty years of rows. Reported: observations per second and the
// size of the bank at the end. Four weeks run first, as a quick figure to
// compare a change by; on a bank in memory (TMPDIR=/dev/shm) the figures are the
// program's own work without the disk's flushes.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "bench_bank.h"
#include "coders/bufr.h"
#include "station/program.h"
#include "screens/record.h"
#include "station/workstation.h"

namespace {

namespace fs = std::filesystem;
using namespace obsdesk;

constexpr int kYearReports = 365 * 24;
constexpr int kArchiveYears = 20;

std::uintmax_t folder_size(const fs::path& root) {
  std::uintmax_t total = 0;
  for (const auto& e : fs::recursive_directory_iterator(root))
    if (e.is_regular_file()) total += e.file_size();
  return total;
}

struct Rig {
  QueueAsker asker;
  FixedClock clock{{2023, 2, 1, 0, 5, 0}};
  MemoryClipboard clipboard;
  std::unique_ptr<Workstation> ws;
};

std::string two(int n) {
  char b[4];
  std::snprintf(b, sizeof b, "%02d", n);
  return b;
}

// One report of the hour, typed as an observer types it; false when the screens
// refused it (the reason is in the messages).
bool one_report(Desk& ws, int hour) {
  const bool synoptic = hour % 3 == 0;
  FrmKashf& k = ws.FrmKashf;
  ws.click(ws.FrmDisplayKashf.newW);
  ws.choose(k.Combo5, synoptic ? std::string(kSynMet) : std::string(kMetar));
  if (synoptic) {
    ws.type(ws.FrmIRIX.TXTIR, "3");
    ws.type(ws.FrmIRIX.TXTIX, "2");
  }
  ws.type(k.Text1, two(hour));
  ws.press_enter();
  // The boxes in the order of the walk; the second group of clouds, the rain, T12
  // and the extremes only at the synoptic hours.
  const struct {
    const char* box;
    const char* text;
    bool synoptic_only;
  } typed[] = {
      {"Text2", "270", false},   {"Text3", "4", false},    {"Text4", "10000", false},   {"Text5", "3", false},
      {"Text6", "3", false},     {"Combo1", "CU     1", false}, {"Text7", "900", false}, {"Text49", "3", true},
      {"Combo4", "CU     1", true}, {"txtmin", "900", true}, {"Text27", "12.4", false}, {"Text28", "6.2", false},
      {"Text13", "15", false},   {"Text14", "880.0", false}, {"Text25", "1.2", true},   {"Text38", "3", true},
      {"txtt12", "8.0", true},   {"Text59", "4.0", true},   {"Text60", "18.2", true},
  };
  for (const auto& t : typed)
    if (synoptic || !t.synoptic_only) ws.set_text(*ws.control(t.box), t.text);
  if (synoptic) ws.click(k.Cmdsynop);
  ws.click(k.Command4);
  ws.click(k.Combo7);
  ws.choose(k.Combo7, "احمد رضايي");
  ws.click(k.ZAKHIREH);
  ws.click(ws.FrmDisplayKashf.save);
  const bool saved = ws.FrmPol.visible;  // the copy-out dialog follows every save
  if (saved) ws.click(ws.FrmPol.Command1);
  return saved;
}

void BM_YearOfWork(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    const fs::path root = bench::temp_bank("obsdesk-year-bench");
    bench::fill_kashf(root, kArchiveYears * kYearReports, 997);  // twenty years of hourly rows
    Rig d;
    d.ws = std::make_unique<Workstation>(root, Services{d.asker, d.clock, d.clipboard});
    start_program(*d.ws);
    d.ws->click(d.ws->FrmMain.Command2);
    // ecCodes reads its tables at the first message of a run (about a fifth of a
    // second, once): the year is the work of every report after it.
    encode_bufr(BufrReport{});
    state.ResumeTiming();

    int done = 0;
    const int days = static_cast<int>(state.range(0));
    for (int day = 0; day < days; ++day) {
      // The clock of the observation: a few minutes past each hour, from February
      // 2023, so that January's month-end rewrite finds December's files.
      const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::year{2023} / 2 / 1} +
                                             std::chrono::days{day}};
      const int y = static_cast<int>(date.year());
      const int m = static_cast<int>(static_cast<unsigned>(date.month()));
      const int dd = static_cast<int>(static_cast<unsigned>(date.day()));
      for (int hour = 0; hour < 24; ++hour) {
        d.clock.set({y, m, dd, hour, 5, 0});
        if (!one_report(*d.ws, hour)) {
          const auto msgs = d.ws->take_messages();
          state.SkipWithError(("a report was refused at " + two(m) + "-" + two(dd) + " " + two(hour) + ": " +
                               (msgs.empty() ? std::string("no message") : msgs.back()))
                                  .c_str());
          return;
        }
        d.ws->take_messages();
        ++done;
      }
    }

    state.PauseTiming();
    state.counters["observations"] = done;
    state.counters["obs_per_s"] = benchmark::Counter(done, benchmark::Counter::kIsRate);
    d.ws.reset();
    state.counters["bank_MB"] = static_cast<double>(folder_size(root)) / 1e6;
    fs::remove_all(root.parent_path());
    state.ResumeTiming();
  }
}
// A month first (the rate to compare changes by), then the year itself.
BENCHMARK(BM_YearOfWork)->Arg(28)->Arg(365)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

}  // namespace
