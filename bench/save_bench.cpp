// One observation confirmed and saved end to end (new report, confirmation,
// save with its bulletin and text record) on an empty bank and on one whose
// KASHF table and total text files hold 200,000 reports: the time per save must
// not grow with the archive, since the total files are appended, never read.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "bench_bank.h"
#include "station/program.h"
#include "screens/record.h"
#include "station/workstation.h"

namespace {

namespace fs = std::filesystem;
using namespace obsdesk;

// A bank with this many reports in the table and in each total file.
void fill_archive(const fs::path& root, int reports) {
  bench::fill_kashf(root, reports, 100000);
  const fs::path scdata = root / "VARDOK" / "BANK" / "OIII" / "TEXT" / "SCDATA";
  const fs::path kashf = root / "VARDOK" / "BANK" / "OIII" / "TEXT" / "KASHF";
  const std::string line(200, '5');
  for (const fs::path& f : {scdata / "S754.dat", scdata / "SG754.dat", kashf / "KASHF754.dat"}) {
    std::ofstream out(f, std::ios::binary);
    for (int r = 0; r < reports; ++r) out << line << "\r\n";
  }
  flush_bank(root);
}

struct Rig {
  QueueAsker asker;
  FixedClock clock{{2024, 3, 20, 5, 40, 0}};
  MemoryClipboard clipboard;
  std::unique_ptr<Workstation> ws;
};

void one_save(Desk& ws) {
  ws.click(ws.FrmDisplayKashf.newW);
  FrmKashf& k = ws.FrmKashf;
  k.Combo5.text = std::string(kSynop);
  k.Text1.text = "06";
  k.TXTYEARmi.text = "2024";
  k.TXTMONTHMI.text = "03";
  k.TXTDAYmi.text = "20";
  k.Text27.text = "12.4";
  k.Combo7.text = "OBSERVER";
  ws.FrmCode.Text75.text = "06";
  ws.FrmCode.TXTSCDATA.text = "2407542403200612570     10124";
  ws.FrmCode.TXTgolbad.text = "4075424032006***27004*******";
  ws.SynopLine1 = "12570 32704 10124=";
  k.ZAKHIREH.enabled = true;
  ws.click(k.ZAKHIREH);
  ws.click(ws.FrmDisplayKashf.save);
  ws.show(ws.FrmDisplayKashf);
}

void BM_ConfirmAndSave(benchmark::State& state) {
  const fs::path root = bench::temp_bank("obsdesk-save-bench");
  fill_archive(root, static_cast<int>(state.range(0)));
  Rig d;
  d.ws = std::make_unique<Workstation>(root, Services{d.asker, d.clock, d.clipboard});
  start_program(*d.ws);
  d.ws->click(d.ws->FrmMain.Command2);
  for (auto _ : state) one_save(*d.ws);
  if (!d.ws->take_messages().empty()) state.SkipWithError("a save was refused");
  d.ws.reset();
  fs::remove_all(root.parent_path());
}
BENCHMARK(BM_ConfirmAndSave)->Arg(0)->Arg(200000)->Unit(benchmark::kMillisecond);

}  // namespace
