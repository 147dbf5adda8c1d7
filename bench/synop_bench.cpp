// Coding one complete SYNOP with sections 3 and 5 at 06 UTC: every group, the
// joining, the two lines, the S and G lines and the store of the panel.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "coders/code_panel.h"
#include "coders/synop.h"
#include "station/program.h"
#include "core/services.h"
#include "station/workstation.h"

namespace {

namespace fs = std::filesystem;

void fill(obsdesk::Desk& ws) {
  const std::pair<const char*, const char*> values[] = {
      {"TXTYEARmi", "2024"}, {"TXTMONTHMI", "03"}, {"TXTDAYmi", "20"}, {"TXTYEARsh", "1403"},
      {"TXTMONTHSH", "01"}, {"TXTDAYsh", "01"}, {"Text1", "06"}, {"Combo5", "SYNOP    "}, {"Text48", "12"},
      {"Text5", "7"}, {"Text2", "270"}, {"Text3", "6"}, {"Text4", "12000"}, {"Text12", ""},
      {"Text6", "2"}, {"Combo1", "CU     2"}, {"Text7", "800"}, {"Text8", "3"}, {"Combo2", "CB     9"},
      {"Text9", "1200"}, {"Text10", "2"}, {"Combo3", "SC     4"}, {"Text11", "1600"}, {"Text49", "5"},
      {"Combo4", "CB     9"}, {"txtmin", "800"}, {"Text17", "3"}, {"Combo6", "AC     3"}, {"Text16", "3500"},
      {"Text23", "2"}, {"Combo9", "CI     1"}, {"Text22", "8000"}, {"Text27", "8.4"}, {"Text28", "4.2"},
      {"Text29", "-1.6"}, {"Text31", "49.6"}, {"Text18", "881.4"}, {"Text21", "1018.7"}, {"Text24", "1480.4"},
      {"Text38", "2"}, {"Text25", "0.8"}, {"txtpast6", "2.5"}, {"Text53", "4.2"}, {"Text66", "3.4"},
      {"Text68", "-2.5"}, {"Text69", "3"}, {"Txttimesun", ""}, {"Text71", ""}, {"Txttond", "     "},
      {"Txtmaxwind", "     "}, {"Image1", "ww80"}, {"Image2", "W8"}};
  for (const auto& [name, text] : values) ws.control(name)->text = text;
  ws.FrmCode.Text85.text = "78082";
  ws.FrmCode.Text91.text = "30102";
  ws.GroundCode = "1";  // the snow cover's figure E', as the ground board leaves it
}

void BM_CodeOneSynop(benchmark::State& state) {
  std::string tmpl = (fs::temp_directory_path() / "obsdesk-synop-bench-XXXXXX").string();
  if (::mkdtemp(tmpl.data()) == nullptr) std::abort();
  {
    obsdesk::QueueAsker asker;
    obsdesk::FixedClock clock({2024, 3, 20, 6, 40, 0});
    obsdesk::MemoryClipboard clipboard;
    obsdesk::Workstation ws(fs::path(tmpl) / "bank", obsdesk::Services{asker, clock, clipboard});
    obsdesk::start_program(ws);
    fill(ws);
    obsdesk::load_code_panel(ws);
    for (auto _ : state) {
      obsdesk::run_synop(ws);
      benchmark::DoNotOptimize(ws.FrmKashf.txtSYN.text.data());
    }
    if (ws.FrmCode.TXTTEDAD.text != "200") state.SkipWithError("the S line is not 200 characters");
  }
  fs::remove_all(tmpl);
}
BENCHMARK(BM_CodeOneSynop)->Unit(benchmark::kMicrosecond);

}  // namespace
