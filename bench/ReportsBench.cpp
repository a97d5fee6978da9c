#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>

#include "GeneratedSystem.h"
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

// The generated river system, run once for the reports to read. Reservoirs are small enough to
// empty and to spill, and demands to fail, now and then.
GeneratedSystem& system() {
  static GeneratedSystem run = [] {
    GeneratedSystem::Shape shape;
    shape.suppliedDemand = 4.0;
    shape.returningDemand = 3.0;
    shape.maxVol = 300;
    shape.initVol = 200;
    shape.amplitude = 9.5;
    shape.evaporation = 150.0;
    shape.release = 9.0;
    return GeneratedSystem(100, shape);
  }();
  static const bool ran = run.net.scenario->run(nullptr);
  if (!ran) throw std::runtime_error("the generated system did not run");
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
