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

// A river system generated for timing: 50 reservoirs in a chain down to a drain, over 1,200
// monthly periods, with every result series of every element filled as a run would leave it.
class GeneratedResults {
 public:
  GeneratedResults()
      : net(Interval(Date(1901, 1, 1), Date(2000, 12, 1), Vocabulary::of(Periodicity::monthly))) {
    std::shared_ptr<Node> previous;
    for (int i = 0; i < 50; ++i) {
      auto reservoir = std::static_pointer_cast<Reservoir>(net.node(ElementType::reservoir));
      reservoir->getReservoirInfo().cav = {{500, 0, 0}, {505, 20, 50}, {510, 45, 200}};
      reservoir->getInputSerie(SerieType::naturalIncrementalFlow)->fill(10.0 + i);
      if (previous) net.link(previous, reservoir, 1000.0);
      previous = reservoir;
    }
    net.link(previous, net.node(ElementType::drain), 1000.0);
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

std::string benchPath() {
  return (std::filesystem::temp_directory_path() / "kova_database_bench.sqlite").string();
}

// The project saved once to a fresh database, the open storage on it.
SQLite::Database& freshProject(GeneratedResults& system) {
  std::filesystem::remove(benchPath());
  auto& storage = SQLStorage::getInstance(benchPath()).getStorageRef();
  ProjectSaver::saveAsTransaction(storage, {system.net.scenario}, nullptr);
  return storage;
}

void BM_SaveResultsOfFiftyReservoirs(benchmark::State& state) {
  GeneratedResults system;
  auto& storage = freshProject(system);
  for (auto _ : state) {
    ScenarioManager::updateSceneryResultsInDatabase(system.net.scenario, storage, nullptr);
  }
  state.counters["rows/s"] = benchmark::Counter(static_cast<double>(system.resultRows()),
                                                benchmark::Counter::kIsIterationInvariantRate);
  SQLStorage::deleteInstance();
  std::filesystem::remove(benchPath());
}
BENCHMARK(BM_SaveResultsOfFiftyReservoirs)->Unit(benchmark::kMillisecond);

void BM_LoadResultsOfFiftyReservoirs(benchmark::State& state) {
  GeneratedResults system;
  auto& storage = freshProject(system);
  const auto hash =
      DatabaseSearch::getHashesOfResultsByScenID(storage, system.net.scenario->getDatabaseId());
  for (auto _ : state) {
    DatabaseProjectLoader::loadResultsByHash(storage, system.net.scenario, hash.front());
  }
  state.counters["rows/s"] = benchmark::Counter(static_cast<double>(system.resultRows()),
                                                benchmark::Counter::kIsIterationInvariantRate);
  SQLStorage::deleteInstance();
  std::filesystem::remove(benchPath());
}
BENCHMARK(BM_LoadResultsOfFiftyReservoirs)->Unit(benchmark::kMillisecond);

}  // namespace
