// The final syntax check beside the run of the coder it closes, and typing a
// long text, whose cost must grow with its length and no faster.
#include <benchmark/benchmark.h>

#include <string>

#include "coders/syntax_gate.h"
#include "core/services.h"
#include "station/workstation.h"

namespace {

void BM_SynopGate(benchmark::State& state) {
  const std::string text =
      "32558 52404 10254 20121 30125 40150 53012 60001 70222 83100 333 10312 20121 55080 83820 84640=";
  for (auto _ : state) benchmark::DoNotOptimize(obsdesk::synop_fault(text));
}
BENCHMARK(BM_SynopGate)->Unit(benchmark::kMicrosecond);

void BM_MetarGate(benchmark::State& state) {
  const std::string text = " 27025G40KT 240V300 4000NE +TSRA BKN010CB FEW030TCU OVC100 15/M02 Q1002 RERA=";
  for (auto _ : state) benchmark::DoNotOptimize(obsdesk::metar_fault(text, false));
}
BENCHMARK(BM_MetarGate)->Unit(benchmark::kMicrosecond);

// Typing N characters into a box with no rule and no limit of its own.
void BM_TypeLongText(benchmark::State& state) {
  obsdesk::QueueAsker asker;
  obsdesk::FixedClock clock({2024, 3, 20, 5, 40, 0});
  obsdesk::MemoryClipboard clipboard;
  obsdesk::Workstation ws("/nonexistent-bank", obsdesk::Services{asker, clock, clipboard});
  obsdesk::Screen pad("Pad");
  obsdesk::TextBox box(pad, "Box");
  ws.show(pad);
  const std::string text(static_cast<std::size_t>(state.range(0)), 'x');
  for (auto _ : state) ws.type(box, text);
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_TypeLongText)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

}  // namespace
