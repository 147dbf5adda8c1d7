// Encoding the BUFR message of one SYNOP with section 3 and two cloud layers, as
// each save does; and the text read back into values alone.
#include <benchmark/benchmark.h>

#include "coders/bufr.h"
#include "coders/synop_decode.h"

namespace {

constexpr const char* kSynop =
    "12558 72706 10084 21016 38814 40187 52008 60251 78082 85930 333 21025 30102 41003 70042 82840 89645 86350 "
    "88657=";

obsdesk::BufrReport report() {
  obsdesk::BufrReport r;
  r.station = {"40754", "40754", "MEHRABAD AIRPORT", 35.6833, 51.3167, 1190.8};
  r.year = 2024;
  r.month = 3;
  r.day = 20;
  r.hour = 6;
  r.values = obsdesk::decode_synop(kSynop);
  r.relative_humidity = 50;
  return r;
}

void BM_EncodeOneBufr(benchmark::State& state) {
  const obsdesk::BufrReport r = report();
  benchmark::DoNotOptimize(obsdesk::encode_bufr(r));  // ecCodes loads its tables once
  for (auto _ : state) benchmark::DoNotOptimize(obsdesk::encode_bufr(r));
}
BENCHMARK(BM_EncodeOneBufr)->Unit(benchmark::kMicrosecond);

void BM_DecodeSynopText(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(obsdesk::decode_synop(kSynop));
}
BENCHMARK(BM_DecodeSynopText)->Unit(benchmark::kMicrosecond);

}  // namespace
