#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>

#include "common/PeriodWalker.h"
#include "core/Demand.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/ReservoirRuleSettings.h"
#include "reports/CSVWriteResults.h"
#include "reports/LoadedDataProducerOfSimulationMetrics.h"
#include "reports/SimulationMetricsEnumFactoryByType.h"
#include "reports/SimulationMetricsFactoryToDemand.h"
#include "reports/SimulationMetricsFactoryToReservoir.h"
#include "rules/ConstReleaseRule.h"
#include "support/NetworkBuilder.h"

namespace {

// A river system run once for the reports to read: 50 reservoirs in a binary tree of
// tributaries, each releasing a constant flow through a junction that serves two demands (one
// returning 20 % downstream), 100 demands in all, and a drain at the mouth, over 1,200 months.
// Reservoirs are small enough to empty and to spill, and demands to fail, now and then.
class RunSystem {
 public:
  RunSystem() : net(Interval(Date(1901, 1, 1), Date(2000, 12, 1), monthly())) {
    std::vector<std::shared_ptr<Node>> confluences;
    for (int i = 0; i < 50; ++i) {
      auto reservoir = addReservoir(i);
      auto junction = net.node(ElementType::junction);
      link(reservoir, junction);
      sendAll(reservoir);
      auto supplied = net.node(ElementType::irrigationDemand);
      auto returning = std::static_pointer_cast<Demand>(net.node(ElementType::humanDemand));
      supplied->getInputSerie(SerieType::demand)->fill(4.0);
      returning->getInputSerie(SerieType::demand)->fill(3.0);
      auto toSupplied = link(junction, supplied, ElementType::artificialLink);
      auto toReturning = link(junction, returning, ElementType::artificialLink);
      confluences.push_back(net.node(ElementType::junction));
      auto onward = link(junction, confluences.back());
      returning->setDemandReturnPercentage(link(returning, confluences.back()), 20.0);
      net.allocation(junction, {{id(junction), id(toSupplied), id(toReturning), id(onward)},
                                {3, 2, 1, 0},
                                {100, 2, 1, 97}});
      reservoirs.push_back(reservoir);
    }
    for (int i = 1; i < 50; ++i) link(confluences[i], reservoirs[(i - 1) / 2]);
    link(confluences[0], net.node(ElementType::drain));
    for (const auto& junction : confluences) sendAll(junction);
    if (!net.scenario->run(nullptr)) throw std::runtime_error("the generated system did not run");
  }

  NetworkBuilder net;

 private:
  static const EnumPeriodicity& monthly() { return Vocabulary::of(Periodicity::monthly); }
  static double id(const std::shared_ptr<Element>& e) { return e->getId(); }

  std::shared_ptr<Link> link(const std::shared_ptr<Node>& up, const std::shared_ptr<Node>& down,
                             ElementType type = ElementType::naturalLink) {
    auto created = net.link(up, down, 1000.0, type);
    created->getInputSerie(SerieType::transitLossPercentage)->fill(1.0);
    return created;
  }

  void sendAll(const std::shared_ptr<Node>& node) {
    for (const auto& out : node->getDownstreamLinks()) {
      net.allocation(node, {{id(node), id(out)}, {100, 100}});
    }
  }

  std::shared_ptr<Node> addReservoir(int index) {
    auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
    ReservoirInfo& info = reservoir->getReservoirInfo();
    info.cav = {{500, 0, 0}, {505, 20, 50}, {510, 45, 200}, {515, 80, 500}, {520, 120, 900}};
    info.minVol = 50;
    info.maxVol = 300;
    info.initVol = 200;
    PeriodWalker::forEach(net.scenario->getInterval(), [&](const Date& date) {
      const double seasonal = 10.0 + 9.5 * std::sin((date.getMonth() + index) * 0.5236);
      reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->setValue(date, seasonal);
      reservoir->getInputSerie(SerieType::evaporation)->setValue(date, 150.0);
      reservoir->getInputSerie(SerieType::precipitation)->setValue(date, 60.0);
    });
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(9.0);
    Scenario::getSettings<ReservoirRuleSettings>(reservoir, net.scenario->getSettingsManager())
        ->setRule(rule);
    return reservoir;
  }

  std::vector<std::shared_ptr<Node>> reservoirs;
};

RunSystem& system() {
  static RunSystem run;
  return run;
}

std::vector<std::shared_ptr<SimulationMetricsEnum>> kinds(
    const std::vector<SimulationMetricsTypeDefinition>& types) {
  std::vector<std::shared_ptr<SimulationMetricsEnum>> result;
  for (auto type : types) result.push_back(SimulationMetricsEnumFactoryByType::make(type));
  return result;
}

// All ten demand metrics of the 100 demands and all twelve reservoir metrics of the 50
// reservoirs, as the comparison tables show them.
void BM_SimulationMetricsTables(benchmark::State& state) {
  const auto& scenario = system().net.scenario;
  const auto demands =
      ElementsFilter::filterByType(scenario->getElements(), ElementSets::consumerDemands());
  const auto reservoirs =
      ElementsFilter::filterByType(scenario->getElements(), ElementSets::reservoir());
  const auto demandKinds = kinds(SimulationMetricsFactoryToDemand::keys());
  const auto reservoirKinds = kinds(SimulationMetricsFactoryToReservoir::keys());
  using Category = ElementGroup::ElementCategoriesEnum;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
            Category::demand, demands, demandKinds, scenario, 0));
    benchmark::DoNotOptimize(
        LoadedDataProducerOfSimulationMetrics::getLoadedDataOfSimulationMetrics(
            Category::reservoir, reservoirs, reservoirKinds, scenario, 0));
  }
  state.counters["cells"] = static_cast<double>(demands.size() * demandKinds.size() +
                                                reservoirs.size() * reservoirKinds.size());
}
BENCHMARK(BM_SimulationMetricsTables)->Unit(benchmark::kMillisecond);

// The result files of every element of the run: one per element, 1,200 lines each.
void BM_CSVExportOfResults(benchmark::State& state) {
  const auto& scenario = system().net.scenario;
  const auto folder =
      std::filesystem::temp_directory_path() / ("kova-reports-bench-" + std::to_string(::getpid()));
  std::size_t files = 0;
  for (auto _ : state) files = CSVWriteResults::writeScenarios({scenario}, folder).size();
  std::uintmax_t bytes = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) bytes += entry.file_size();
  }
  std::filesystem::remove_all(folder);
  state.counters["files"] = static_cast<double>(files);
  state.counters["MB"] = static_cast<double>(bytes) / 1e6;
}
BENCHMARK(BM_CSVExportOfResults)->Unit(benchmark::kMillisecond);

}  // namespace
