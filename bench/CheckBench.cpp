#include <benchmark/benchmark.h>

#include <memory>

#include "GeneratedSystem.h"
#include "checks/SceneryCheckFactory.h"
#include "core/ElementsFilter.h"
#include "core/PrioritySettings.h"
#include "scenario/PriorityScenario.h"

namespace {

constexpr double kPeriods = 1200.0;

// The generated system's own elements operated by priorities: reservoirs aim at half of their
// capacity with priorities 20 to 24, demands come before them with 1 to 8 for those that are only
// supplied and 1 for those that return water, so that no demand comes after one below it.
class GeneratedSystemByPriorities {
 public:
  GeneratedSystemByPriorities()
      : rules(100),
        scenario(std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 2,
                                                    rules.net.scenario->getInterval(),
                                                    "Prioridades")) {
    scenario->addElementsKeepingIDs(rules.net.scenario->getElements(), false);
    unsigned int index = 0;
    for (const auto& element : ElementsFilter::filterByNodes(scenario->getElements())) {
      if (element->getType() == ElementType::reservoir) {
        settings(element)->setPriority(20 + index % 5);
        element->getInputSerie(SerieType::targetVolume)->fill(0.5);
      } else if (element->getType() == ElementType::irrigationDemand) {
        settings(element)->setPriority(1 + index % 8);
      }
      ++index;
    }
  }

  GeneratedSystem rules;
  std::shared_ptr<PriorityScenario> scenario;

 private:
  std::shared_ptr<PrioritySettings> settings(const std::shared_ptr<Element>& element) const {
    return Scenario::getSettings<PrioritySettings>(element, scenario->getSettingsManager());
  }
};

// The whole check before a run, in which every input series is read on every period; to be set
// beside the runs it precedes, BM_RuleRunGeneratedSystem and BM_PriorityRunGeneratedSystem/50.
void checkBeforeRun(benchmark::State& state, const std::shared_ptr<Scenario>& scenario) {
  scenario->preRun();
  const auto sceneryCheck = SceneryCheckFactory::make(scenario);
  for (auto _ : state) {
    sceneryCheck->check();
    if (!sceneryCheck->isOk()) {
      state.SkipWithError("the generated system was refused");
      break;
    }
  }
  state.counters["elements"] = static_cast<double>(scenario->getElements().size());
  state.counters["s_per_period"] = benchmark::Counter(
      kPeriods, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_CheckRuleGeneratedSystem(benchmark::State& state) {
  GeneratedSystem system(100);
  checkBeforeRun(state, system.net.scenario);
}
BENCHMARK(BM_CheckRuleGeneratedSystem)->Unit(benchmark::kMillisecond);

void BM_CheckPriorityGeneratedSystem(benchmark::State& state) {
  GeneratedSystemByPriorities system;
  checkBeforeRun(state, system.scenario);
}
BENCHMARK(BM_CheckPriorityGeneratedSystem)->Unit(benchmark::kMillisecond);

}  // namespace
