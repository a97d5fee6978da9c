#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "GeneratedSystem.h"
#include "project/database/DatabaseCopy.h"
#include "project/database/DatabaseHistoricalManager.h"
#include "project/database/ProjectSaver.h"
#include "project/database/SQLStorage.h"
#include "project/database/UserLiteSaver.h"

namespace {

std::string benchFile(const std::string& name) {
  return (std::filesystem::temp_directory_path() / ("kova_database_copy_bench_" + name)).string();
}

// The generated river system over 20 monthly years, run once and saved with its results to a
// fresh database, which is the open one: what a save-as that keeps the older database copies.
class SavedGeneratedProject {
 public:
  SavedGeneratedProject() : system(20) {
    system.net.scenario->run(nullptr);
    std::filesystem::remove(source);
    SQLStorage::getInstance(source);
    ProjectSaver::saveAsTransaction(storage(), {system.net.scenario}, nullptr);
  }
  ~SavedGeneratedProject() {
    SQLStorage::deleteInstance();
    std::filesystem::remove(source);
    std::filesystem::remove(target);
  }

  SQLite::Database& storage() { return SQLStorage::getInstance().getStorageRef(); }
  // The database a save-as writes, empty.
  SQLite::Database& freshTarget() {
    std::filesystem::remove(target);
    SQLStorage::getInstance().createTemporaryStorage(target);
    return SQLStorage::getInstance().getTemporaryStorageRef();
  }

  // The series values and curve points stored, one row each.
  long rows() const {
    long count = 0;
    for (const auto& element : system.net.scenario->getElements()) {
      for (const auto& serie : element->getVectorOfInputSeries()) count += serie->size();
      for (const auto& serie : element->getVectorOfSeries(0)) count += serie->size();
      if (const auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
        count += static_cast<long>(reservoir->getReservoirInfo().cav.size());
      }
    }
    return count;
  }

  GeneratedSystem system;
  const std::string source = benchFile("source.sqlite");
  const std::string target = benchFile("target.sqlite");
};

void BM_CopyDatabaseOfTheGeneratedSystem(benchmark::State& state) {
  SavedGeneratedProject project;
  auto& source = project.storage();
  auto& target = project.freshTarget();
  const int64_t user = UserLiteSaver::defaultUserId(source);
  for (auto _ : state) {
    if (!DatabaseCopy::copyRows(source, target, user, nullptr)) state.SkipWithError("cancelled");
  }
  state.counters["rows/s"] = benchmark::Counter(static_cast<double>(project.rows()),
                                                benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_CopyDatabaseOfTheGeneratedSystem)->Unit(benchmark::kMillisecond);

// Looking for outdated rows where there are none: the price of offering the clean-up at all.
void BM_EraseHistoryOfACleanProject(benchmark::State& state) {
  SavedGeneratedProject project;
  auto& storage = project.storage();
  for (auto _ : state) {
    if (!DatabaseHistoricalManager::eraseAllHistorical(storage, {project.system.net.scenario},
                                                       nullptr)) {
      state.SkipWithError("cancelled");
    }
  }
}
BENCHMARK(BM_EraseHistoryOfACleanProject)->Unit(benchmark::kMillisecond);

}  // namespace
