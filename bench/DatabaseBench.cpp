#include <SQLiteCpp/SQLiteCpp.h>
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>

#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/ProjectSaver.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"
#include "support/NetworkBuilder.h"

namespace {

// A river system generated for timing: 50 reservoirs in a chain down to a drain, each feeding
// a human and an irrigation demand (100 demands), over 1,200 monthly periods, with every result
// series of every element filled as a run would leave it.
class GeneratedResults {
 public:
  GeneratedResults()
      : net(Interval(Date(1901, 1, 1), Date(2000, 12, 1), Vocabulary::of(Periodicity::monthly))) {
    std::shared_ptr<Node> previous;
    for (int i = 0; i < 50; ++i) {
      auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
      reservoir->getReservoirInfo().cav = {{500, 0, 0}, {505, 20, 50}, {510, 45, 200}};
      reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->fill(10.0 + i);
      for (ElementType type : {ElementType::humanDemand, ElementType::irrigationDemand}) {
        auto demand = net.node(type);
        demand->getInputSerie(SerieType::demand)->fill(1.0);
        net.link(reservoir, demand, 1000.0, ElementType::artificialLink);
      }
      if (previous) net.link(previous, reservoir, 1000.0);
      previous = reservoir;
    }
    net.link(previous, net.node(ElementType::drain), 1000.0);
  }

  void fillResults() {
    net.scenario->createResults();
    for (const auto& element : net.scenario->getElements()) {
      for (const auto& serie : element->getVectorOfSeries(0)) {
        serie->fill(0.0);
        for (const auto& entry : serie->getMapOfJulianToValues()) {
          serie->setValue(entry.first, std::sin(entry.first * 0.01) + element->getId());
        }
      }
    }
  }

  long resultRows() const {
    long rows = 0;
    for (const auto& element : net.scenario->getElements()) {
      for (const auto& serie : element->getVectorOfSeries(0))
        rows += static_cast<long>(serie->size());
    }
    return rows;
  }

  NetworkBuilder net;
};

std::filesystem::path benchPath() {
  return std::filesystem::temp_directory_path() / "kova_database_bench.sqlite";
}

std::filesystem::path templatePath() {
  return std::filesystem::temp_directory_path() / "kova_database_bench_template.sqlite";
}

// The system saved once, without results, to a database kept aside: each timed store starts
// from a copy of it.
GeneratedResults& savedSystem() {
  static GeneratedResults* system = [] {
    auto* made = new GeneratedResults();
    std::filesystem::remove(templatePath());
    auto& storage = SQLStorage::getInstance(templatePath().string()).getStorageRef();
    ProjectSaver::saveAsTransaction(storage, {made->net.scenario}, nullptr);
    SQLStorage::deleteInstance();
    made->fillResults();
    return made;
  }();
  return *system;
}

SQLite::Database& copyOfTemplate() {
  SQLStorage::deleteInstance();
  std::filesystem::copy_file(templatePath(), benchPath(),
                             std::filesystem::copy_options::overwrite_existing);
  return SQLStorage::getInstance(benchPath().string()).getStorageRef();
}

void rowsPerSecond(benchmark::State& state, const GeneratedResults& system) {
  state.counters["rows"] = static_cast<double>(system.resultRows());
  state.counters["rows/s"] = benchmark::Counter(static_cast<double>(system.resultRows()),
                                                benchmark::Counter::kIsIterationInvariantRate);
}

// A run's results stored into a database that holds none.
void BM_StoreResultsIntoEmptyDatabase(benchmark::State& state) {
  GeneratedResults& system = savedSystem();
  for (auto _ : state) {
    state.PauseTiming();
    auto& storage = copyOfTemplate();
    state.ResumeTiming();
    ScenarioManager::updateSceneryResultsInDatabase(system.net.scenario, storage, nullptr);
  }
  rowsPerSecond(state, system);
  SQLStorage::deleteInstance();
  std::filesystem::remove(benchPath());
}
BENCHMARK(BM_StoreResultsIntoEmptyDatabase)->Unit(benchmark::kMillisecond);

// A run's results stored over those of the run before, which go.
void BM_StoreResultsReplacingARun(benchmark::State& state) {
  GeneratedResults& system = savedSystem();
  auto& storage = copyOfTemplate();
  ScenarioManager::updateSceneryResultsInDatabase(system.net.scenario, storage, nullptr);
  for (auto _ : state) {
    ScenarioManager::updateSceneryResultsInDatabase(system.net.scenario, storage, nullptr);
  }
  rowsPerSecond(state, system);
  SQLStorage::deleteInstance();
  std::filesystem::remove(benchPath());
}
BENCHMARK(BM_StoreResultsReplacingARun)->Unit(benchmark::kMillisecond);

void BM_LoadResultsOfFiftyReservoirs(benchmark::State& state) {
  GeneratedResults& system = savedSystem();
  auto& storage = copyOfTemplate();
  ScenarioManager::updateSceneryResultsInDatabase(system.net.scenario, storage, nullptr);
  const auto hash =
      DatabaseSearch::getHashesOfResultsByScenID(storage, system.net.scenario->getDatabaseId());
  for (auto _ : state) {
    DatabaseProjectLoader::loadResultsByHash(storage, system.net.scenario, hash.front());
  }
  rowsPerSecond(state, system);
  SQLStorage::deleteInstance();
  std::filesystem::remove(benchPath());
}
BENCHMARK(BM_LoadResultsOfFiftyReservoirs)->Unit(benchmark::kMillisecond);

}  // namespace
