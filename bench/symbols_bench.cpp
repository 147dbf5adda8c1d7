// Drawing the symbols: the hundred buttons of the present weather board, each
// as its SVG document, and the station model of a coded SYNOP from its text.
#include <benchmark/benchmark.h>

#include <string>

#include "screens/weather_tables.h"
#include "symbols/station_model.h"
#include "symbols/symbols.h"

namespace {

using namespace obsdesk;

void BM_PresentWeatherBoardSymbols(benchmark::State& state) {
  for (auto _ : state) {
    std::size_t bytes = 0;
    for (int ww = 0; ww < 100; ++ww) bytes += symbol_svg(present_weather_picture(ww)).size();
    benchmark::DoNotOptimize(bytes);
  }
}
BENCHMARK(BM_PresentWeatherBoardSymbols)->Unit(benchmark::kMicrosecond);

void BM_StationModel(benchmark::State& state) {
  const std::string synop =
      "32558 52404 10254 20121 30125 40150 53012 60001 76362 83100 333 10301 20180 3/018 55300 60005 91118=";
  for (auto _ : state) benchmark::DoNotOptimize(station_model_svg(synop));
}
BENCHMARK(BM_StationModel)->Unit(benchmark::kMicrosecond);

}  // namespace
