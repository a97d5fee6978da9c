#include <benchmark/benchmark.h>

#include "DemoProject.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "optimization/kernel/PseudoRandom.h"

namespace {

// Three iterations of the demo's swarm of 16 instead of its 15 keep one timed run short; each
// simulation is one of the demo's whole record, 1931-2019.
constexpr std::uint32_t kIterations = 3;

// The demo's scenario of kind Kind, or null when it has none.
template <class Kind>
std::shared_ptr<Kind> demoScenario() {
  for (const auto& scenario : DemoProject::makeScenarios(KOVA_DEMO_DATA, 2019)) {
    if (auto found = std::dynamic_pointer_cast<Kind>(scenario)) return found;
  }
  return nullptr;
}

void countSimulations(benchmark::State& state, double simulations) {
  state.counters["simulations"] = simulations;
  state.counters["simulations/s"] =
      benchmark::Counter(simulations, benchmark::Counter::kIsIterationInvariantRate);
}

// The demo's optimisation ("Otimização das regras": the releases of three lakes for deficit and
// spill) with the first argument's threads; simulations per second of the whole run.
void BM_DemoOptimisation(benchmark::State& state) {
  const auto scenario = demoScenario<RuleOptimizationScenario>();
  if (!scenario) {
    state.SkipWithError("the demo has no rule optimisation");
    return;
  }
  auto& execution = scenario->getExecutionOptimization();
  execution.setThreads(static_cast<unsigned int>(state.range(0)));
  auto& parameters = static_cast<MPSOParameters&>(*execution.getAlgorithmParameters());
  parameters.maxIterations = kIterations;
  for (auto _ : state) {
    PseudoRandom::setSeed(1);
    if (!scenario->run(nullptr)) state.SkipWithError("the optimisation did not run");
  }
  countSimulations(state, static_cast<double>(execution.getNumberOfSimulations()));
}
BENCHMARK(BM_DemoOptimisation)
    ->Arg(1)
    ->Arg(2)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

// The demo's guarantee curve ("Curva de garantia": Três Marias and Sobradinho at five levels, 15
// trials each, over 1931-2019) as it stands: the whole curve's time and its simulations per
// second.
void BM_DemoGuaranteeCurve(benchmark::State& state) {
  const auto scenario = demoScenario<GuaranteeCurveScenario>();
  if (!scenario) {
    state.SkipWithError("the demo has no guarantee curve");
    return;
  }
  for (auto _ : state) {
    ExecutionGuaranteeCurve::setSeed(1);
    if (!scenario->run(nullptr)) state.SkipWithError("the curve did not run");
  }
  countSimulations(
      state, static_cast<double>(scenario->getExecutionGuaranteeCurve().getNumberOfSimulations()));
}
BENCHMARK(BM_DemoGuaranteeCurve)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

// The demo's system curve ("Curva de garantia do sistema": Itaparica's flow at 23 levels, a swarm
// of 6 particles over 3 iterations each, over 1931-2019) with the first argument's threads: the
// whole curve's time and its simulations per second. On threads, the candidates of a generation
// after an exact hit are simulated too, so the count can exceed the serial run's.
void BM_DemoSystemGuaranteeCurve(benchmark::State& state) {
  const auto scenario = demoScenario<SystemGuaranteeCurveScenario>();
  if (!scenario) {
    state.SkipWithError("the demo has no system guarantee curve");
    return;
  }
  auto& execution = scenario->getExecutionSystemGuaranteeCurve();
  execution.setThreads(static_cast<unsigned int>(state.range(0)));
  for (auto _ : state) {
    PseudoRandom::setSeed(1);
    if (!scenario->run(nullptr)) state.SkipWithError("the curve did not run");
  }
  countSimulations(state, static_cast<double>(execution.getNumberOfSimulations()));
}
BENCHMARK(BM_DemoSystemGuaranteeCurve)
    ->Arg(1)
    ->Arg(2)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

}  // namespace
