#include <benchmark/benchmark.h>

#include "DemoRuleScenario.h"
#include "GeneratedSystem.h"

namespace {

// A whole rule run (checks included) of the generated 50-reservoir system, 1,200 months.
void BM_RuleRunGeneratedSystem(benchmark::State& state) {
  GeneratedSystem system(100);
  for (auto _ : state) {
    if (!system.net.scenario->run(nullptr)) state.SkipWithError("run failed");
  }
  countElementPeriods(state, *system.net.scenario);
}
BENCHMARK(BM_RuleRunGeneratedSystem)->Unit(benchmark::kMillisecond);

// A whole run (checks included) of the demo's rule scenario, 1,068 months.
void BM_RuleRunDemo(benchmark::State& state) {
  const auto scenario = demoRuleScenario();
  if (!scenario) {
    state.SkipWithError("no rule scenario in the demo");
    return;
  }
  for (auto _ : state) {
    if (!scenario->run(nullptr)) state.SkipWithError("run failed");
  }
  countElementPeriods(state, *scenario);
}
BENCHMARK(BM_RuleRunDemo)->Unit(benchmark::kMillisecond);

}  // namespace
