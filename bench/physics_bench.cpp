// The pressure routine runs after every key released in five boxes: one full
// computation, forward, and inverse plus forward as in the humidity mode.
#include <benchmark/benchmark.h>

#include "physics/barometer.h"
#include "physics/psychrometry.h"

namespace {

using namespace obsdesk;

void BM_DamaFasharForward(benchmark::State& state) {
  const PressureInputs in{1190.8, 35, 41, "18", 20, 12, 20, 875.4};
  PressureResults kept;
  for (auto _ : state) {
    benchmark::DoNotOptimize(DAMA_FASHAR(in, kept));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_DamaFasharForward);

void BM_InverseThenForward(benchmark::State& state) {
  PressureInputs in{1190.8, 35, 41, "18", 20, 36.1, 20, 875.4};
  PressureResults kept;
  for (auto _ : state) {
    in.TWET = 36.1;
    benchmark::DoNotOptimize(ModuleINVERS(in, kept));
    in.TWET = kept.TWETRAW;
    benchmark::DoNotOptimize(DAMA_FASHAR(in, kept));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_InverseThenForward);

}  // namespace
