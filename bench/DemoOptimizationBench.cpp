#include <benchmark/benchmark.h>

#include "DemoProject.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/kernel/PseudoRandom.h"

namespace {

// Three iterations of the demo's swarm of 16 instead of its 15 keep one timed run short; each
// simulation is one of the demo's whole record, 1931-2019.
constexpr std::uint32_t kIterations = 3;

std::shared_ptr<RuleOptimizationScenario> demoOptimisation() {
  for (const auto& scenario : DemoProject::makeScenarios(KOVA_DEMO_DATA, 2019)) {
    if (auto optimisation = std::dynamic_pointer_cast<RuleOptimizationScenario>(scenario)) {
      return optimisation;
    }
  }
  return nullptr;
}

// The demo's optimisation ("Otimização das regras": the releases of three lakes for deficit and
// spill) with the first argument's threads; simulations per second of the whole run.
void BM_DemoOptimisation(benchmark::State& state) {
  const auto scenario = demoOptimisation();
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
  const double simulations = parameters.swarmSize * (1.0 + kIterations);
  state.counters["simulations"] = simulations;
  state.counters["simulations/s"] =
      benchmark::Counter(simulations, benchmark::Counter::kIsIterationInvariantRate);
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
  std::shared_ptr<GuaranteeCurveScenario> scenario;
  for (const auto& made : DemoProject::makeScenarios(KOVA_DEMO_DATA, 2019)) {
    if (auto curve = std::dynamic_pointer_cast<GuaranteeCurveScenario>(made)) scenario = curve;
  }
  if (!scenario) {
    state.SkipWithError("the demo has no guarantee curve");
    return;
  }
  for (auto _ : state) {
    ExecutionGuaranteeCurve::setSeed(1);
    if (!scenario->run(nullptr)) state.SkipWithError("the curve did not run");
  }
  const double simulations =
      static_cast<double>(scenario->getExecutionGuaranteeCurve().getNumberOfSimulations());
  state.counters["simulations"] = simulations;
  state.counters["simulations/s"] =
      benchmark::Counter(simulations, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_DemoGuaranteeCurve)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

}  // namespace
