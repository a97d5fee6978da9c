#include "project/database/ProjectSaver.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "common/Calendar.h"
#include "core/KOVACoreProgressBar.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "project/database/DatabaseException.h"
#include "project/database/DatabaseHydrologicalSeries.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/ElementTypeSaver.h"
#include "project/database/ReservoirCAVSaver.h"
#include "project/database/SerieSaver.h"
#include "project/database/SerieTypeLiteSaver.h"
#include "project/database/TimeStampHash.h"
#include "project/database/UnitTypeSaver.h"
#include "project/database/UserLiteSaver.h"

namespace {

// The databaseIds of scenarios and their elements, to put back when a save does not commit.
class IdsSnapshot {
 public:
  explicit IdsSnapshot(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
    for (const auto& scenario : scenarios) {
      scenarioIds.emplace_back(scenario, scenario->getDatabaseId());
      for (const auto& element : scenario->getElements()) {
        elementIds.emplace_back(element, element->getDatabaseId());
      }
    }
  }
  void restore() const {
    for (const auto& entry : scenarioIds) entry.first->setDatabaseId(entry.second);
    for (const auto& entry : elementIds) entry.first->setDatabaseId(entry.second);
  }

 private:
  std::vector<std::pair<std::shared_ptr<Scenario>, unsigned int>> scenarioIds;
  std::vector<std::pair<std::shared_ptr<Element>, unsigned int>> elementIds;
};

}  // namespace

bool ProjectSaver::saveAsTransaction(SQLite::Database& storage,
                                     const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                     const Progress& progress) {
  const IdsSnapshot snapshot(scenarios);
  try {
    DatabaseException::guard([&] {
      SQLite::Transaction transaction(storage, SQLite::TransactionBehavior::IMMEDIATE);
      const Keys keys{UserLiteSaver::defaultUserId(storage), ElementTypeSaver::save(storage),
                      SerieTypeLiteSaver::save(storage, UnitTypeSaver::save(storage))};
      save(storage, scenarios, keys, progress);
      transaction.commit();
    });
    return true;
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    snapshot.restore();
    return false;
  } catch (...) {
    snapshot.restore();
    throw;
  }
}

void ProjectSaver::save(SQLite::Database& storage,
                        const std::vector<std::shared_ptr<Scenario>>& scenarios, const Keys& keys,
                        const Progress& progress) {
  clearProjectRows(storage);
  const std::string timeStamp = Calendar::getTimeStamp();
  const long total = DatabaseProjectLoader::totalElementsInProject(scenarios);
  long done = 0;
  for (const auto& scenario : scenarios) {
    const int64_t scenarioId = DatabaseInsert::insertSceneryEntryInDatabase(storage, *scenario);
    const std::string hash = TimeStampHash::make(scenarioId, timeStamp);
    for (const auto& element : scenario->getElements()) {
      DatabaseInsert::insertElementRow(storage, scenarioId, *element, keys.elementTypeIds);
      saveElement(storage, scenario, element, keys, timeStamp, hash);
      if (progress && !progress(++done, total)) {
        throw KOVACoreProgressBar::ProgressCancelException();
      }
    }
  }
}

void ProjectSaver::clearProjectRows(SQLite::Database& storage) {
  // Children before parents, for the foreign keys.
  for (const char* table : {"SerieOutput", "SerieInput", "Cav", "HidrologicalStateSeries",
                            "HidrologicalStatePerReservoirSeries",
                            "HidrologicalStatePerReservoirMonthlySeries", "Element", "Scenario"}) {
    storage.exec(std::string("DELETE FROM \"") + table + "\"");
  }
}

void ProjectSaver::saveElement(SQLite::Database& storage, const std::shared_ptr<Scenario>& scenario,
                               const std::shared_ptr<Element>& element, const Keys& keys,
                               const std::string& timeStamp, const std::string& hash) {
  const int64_t key = element->getDatabaseId();
  SerieSaver::saveInputSeries(storage, element->getVectorOfInputSeries(), keys.serieTypeIds,
                              timeStamp, key, keys.userId);
  if (const auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
    ReservoirCAVSaver::save(storage, *reservoir, timeStamp, key, keys.userId);
  }
  DatabaseHydrologicalSeries::saveAll(storage, *scenario, *element);
  const auto windows = static_cast<unsigned int>(element->getOutputSeries().size());
  for (unsigned int window = 0; window < windows; ++window) {
    SerieSaver::saveOuputSeries(storage, element->getVectorOfSeries(window), keys.serieTypeIds,
                                timeStamp, hash, key, keys.userId, window);
  }
}
