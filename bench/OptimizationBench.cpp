#include <benchmark/benchmark.h>

#include "DemoRuleScenario.h"
#include "GeneratedSystem.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/kernel/PseudoRandom.h"
#include "rules/ConstReleaseRule.h"
#include "rules/OptConstReleaseRule.h"

namespace {

constexpr unsigned int kYears = 20;
constexpr std::uint32_t kSwarm = 8;
constexpr std::uint32_t kIterations = 3;

// The generated 50-reservoir system over 20 years as a rule optimisation: the constant releases
// of its first ten reservoirs are chosen between 0 and 16 m³/s, for shortage and evaporation.
std::shared_ptr<RuleOptimizationScenario> generatedOptimisation(unsigned int threads) {
  auto scenario = std::make_shared<RuleOptimizationScenario>(1, GeneratedSystem::monthsOf(kYears),
                                                             "Otimização");
  GeneratedSystem system(scenario, GeneratedSystem::Shape());
  ObjectiveFunction::Elements reservoirs, demands;
  for (const auto& element : scenario->getElements()) {
    if (element->getType() == ElementType::reservoir) reservoirs.push_back(element);
    if (element->getType() == ElementType::irrigationDemand) demands.push_back(element);
  }
  for (std::size_t i = 0; i < 10; ++i) {
    auto rule = std::make_shared<OptConstReleaseRule>();
    rule->setLowerAndUpperRelease(0.0, 16.0);
    rule->setToOpt(true);
    Scenario::getSettings<ReservoirRuleSettings>(system.getReservoirs()[i],
                                                 scenario->getSettingsManager())
        ->setRule(rule);
  }
  auto& execution = scenario->getExecutionOptimization();
  execution.cleanObjectiveFunctions();
  scenario->addMinimizeObjectiveFunction(ObjectiveFunctionType::shortageVolume, demands);
  scenario->addMinimizeObjectiveFunction(ObjectiveFunctionType::evaporationLoss, reservoirs);
  execution.configureAlgorithm(OptimizationAlgorithmType::smpso);
  auto& parameters = static_cast<MPSOParameters&>(*execution.getAlgorithmParameters());
  parameters.swarmSize = kSwarm;
  parameters.maxIterations = kIterations;
  parameters.archiveSize = kSwarm;
  execution.setThreads(threads);
  return scenario;
}

// Simulations per second of a whole optimisation run, on one thread and on several.
void BM_OptimisationOfGeneratedSystem(benchmark::State& state) {
  const auto scenario = generatedOptimisation(static_cast<unsigned int>(state.range(0)));
  for (auto _ : state) {
    PseudoRandom::setSeed(1);
    if (!scenario->run(nullptr)) state.SkipWithError("run failed");
  }
  state.counters["simulations/s"] = benchmark::Counter(
      kSwarm * (1.0 + kIterations), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_OptimisationOfGeneratedSystem)
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// The demo's rule scenario evaluated as an optimisation evaluates a candidate: the scenario is
// run once, then its operation is walked again and again over the record with fresh results,
// the steady release of Retiro Baixo changing between two walks.
void BM_RuleEvaluationsOfDemo(benchmark::State& state) {
  const auto scenario = demoRuleScenario();
  if (!scenario || !scenario->run(nullptr)) {
    state.SkipWithError("the demo's rule scenario does not run");
    return;
  }
  const auto retiroBaixo = scenario->getElement("Retiro Baixo");
  const auto rule = std::static_pointer_cast<ConstReleaseRule>(
      Scenario::getSettings<ReservoirRuleSettings>(retiroBaixo, scenario->getSettingsManager())
          ->getRule());
  ExecutionOptimization evaluation;
  evaluation.setElements(scenario->getElements());
  evaluation.prepareSimulation(scenario->getCurrentOperationSystem(), scenario->getInterval(),
                               scenario->getScenarioType());
  double release = 100.0;
  for (auto _ : state) {
    rule->setRelease(release);
    release = release < 200.0 ? release + 1.0 : 100.0;
    evaluation.run();
  }
  state.counters["simulations/s"] =
      benchmark::Counter(1.0, benchmark::Counter::kIsIterationInvariantRate);
  countElementPeriods(state, *scenario);
}
BENCHMARK(BM_RuleEvaluationsOfDemo)->Unit(benchmark::kMillisecond);

}  // namespace
