#include <benchmark/benchmark.h>

#include <cmath>

#include "common/PeriodWalker.h"
#include "core/Demand.h"
#include "core/ElementFactory.h"
#include "core/LinkFactory.h"
#include "core/PrioritySettings.h"
#include "core/Reservoir.h"
#include "operation/ExecutionContinuous.h"
#include "operation/PriorityOperation.h"
#include "scenario/PriorityScenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

// A river system generated for timing, run by priorities over 100 years of months: reservoirs in
// a binary tree of tributaries, each releasing through a junction that serves two demands (one
// returning 20 % downstream) and joins its tributary's confluence, and a drain at the mouth.
// Supplied demands take priorities 1 to 8 and returning ones 1, so that no demand comes after one
// below it, and reservoirs 20 to 24: from 8 reservoirs on, a date is 14 linear programmes.
class GeneratedPrioritySystem {
 public:
  explicit GeneratedPrioritySystem(int reservoirCount)
      : scenario(std::make_shared<PriorityScenario>(
            std::make_shared<ExecutionContinuous>(), 1,
            Interval(Date(1901, 1, 1), Date(2000, 12, 1), Vocabulary::of(Periodicity::monthly)),
            "Prioridades")) {
    std::vector<std::shared_ptr<Node>> reservoirs, confluences;
    for (int i = 0; i < reservoirCount; ++i) {
      auto reservoir = addReservoir(i);
      auto junction = node(ElementType::junction);
      link(reservoir, junction);
      auto supplied = demand(ElementType::irrigationDemand, 2.0, 1 + i % 8);
      auto returning = demand(ElementType::humanDemand, 1.0, 1);
      link(junction, supplied, ElementType::artificialLink);
      link(junction, returning, ElementType::artificialLink);
      confluences.push_back(node(ElementType::junction));
      link(junction, confluences.back());
      returning->setDemandReturnPercentage(link(returning, confluences.back()), 20.0);
      reservoirs.push_back(reservoir);
    }
    for (int i = 1; i < reservoirCount; ++i) link(confluences[i], reservoirs[(i - 1) / 2]);
    link(confluences[0], node(ElementType::drain));
  }

  std::shared_ptr<PriorityScenario> scenario;

 private:
  std::shared_ptr<Node> node(ElementType type) {
    auto made = std::static_pointer_cast<Node>(ElementFactory::make(type));
    scenario->addElement(made, true);
    return made;
  }

  std::shared_ptr<PrioritySettings> settings(const std::shared_ptr<Element>& element) {
    return Scenario::getSettings<PrioritySettings>(element, scenario->getSettingsManager());
  }

  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             ElementType type = ElementType::naturalLink) {
    std::shared_ptr<Link> made;
    if (type == ElementType::naturalLink) {
      made = LinkFactory<NaturalLink>::make(up, down, "", Vocabulary::of(LinkAddonType::none));
    } else {
      made = LinkFactory<ArtificialLink>::make(up, down, "", Vocabulary::of(LinkAddonType::none));
    }
    scenario->addElement(made, true);
    made->getInputSerie(SerieType::linkLimit)->fill(1000.0);
    made->getInputSerie(SerieType::transitLossPercentage)->fill(1.0);
    return made;
  }

  std::shared_ptr<Demand> demand(ElementType type, double flow, unsigned int priority) {
    auto made = std::static_pointer_cast<Demand>(node(type));
    made->getInputSerie(SerieType::demand)->fill(flow);
    settings(made)->setPriority(priority);
    return made;
  }

  std::shared_ptr<Node> addReservoir(int index) {
    auto reservoir = std::static_pointer_cast<Reservoir>(node(ElementType::reservoir));
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = {{500, 0, 0}, {505, 20, 50}, {510, 45, 200}, {515, 80, 500}, {520, 120, 900}};
    info.minVol = 50;
    info.maxVol = 900;
    info.initVol = 400;
    PeriodWalker::forEach(scenario->getInterval(), [&](const Date& date) {
      const double seasonal = 10.0 + 8.0 * std::sin((date.getMonth() + index) * 0.5236);
      reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(date, seasonal);
      reservoir->getInputSerie(SerieType::evaporation)->setValue(date, 120.0);
      reservoir->getInputSerie(SerieType::precipitation)->setValue(date, 60.0);
    });
    reservoir->getInputSerie(SerieType::targetVolume)->fill(0.5 + 0.1 * (index % 4));
    settings(reservoir)->setPriority(20 + static_cast<unsigned int>(index % 5));
    return reservoir;
  }
};

void BM_PriorityRunGeneratedSystem(benchmark::State& state) {
  GeneratedPrioritySystem system(static_cast<int>(state.range(0)));
  const double periods = system.scenario->getInterval().period();
  for (auto _ : state) {
    if (!system.scenario->run(nullptr)) {
      state.SkipWithError("run failed");
      break;
    }
  }
  if (state.error_occurred()) return;
  const auto operation =
      std::static_pointer_cast<PriorityOperation>(system.scenario->getCurrentOperationSystem());
  const double passes = static_cast<double>(
      operation->getNetworkFlow()->makePriorities(system.scenario->getElements()).size());
  state.counters["elements"] = static_cast<double>(system.scenario->getElements().size());
  state.counters["lp_per_period"] = passes;
  state.counters["s_per_period"] = benchmark::Counter(
      periods, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  state.counters["lp_per_s"] =
      benchmark::Counter(periods * passes, benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_PriorityRunGeneratedSystem)->Arg(5)->Arg(20)->Arg(50)->Unit(benchmark::kMillisecond);

}  // namespace
