#include <benchmark/benchmark.h>

#include "GeneratedSystem.h"

namespace {

void BM_RuleRunGeneratedSystem(benchmark::State& state) {
  GeneratedSystem system(100);
  for (auto _ : state) {
    if (!system.net.scenario->run(nullptr)) state.SkipWithError("run failed");
  }
  state.counters["elements"] = static_cast<double>(system.net.scenario->getElements().size());
  state.counters["periods"] = 1200;
  state.counters["s_per_period"] = benchmark::Counter(
      1200.0, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_RuleRunGeneratedSystem)->Unit(benchmark::kMillisecond);

}  // namespace
