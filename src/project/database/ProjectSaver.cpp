#include "project/database/ProjectSaver.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include "common/Calendar.h"
#include "core/KOVACoreProgressBar.h"
#include "core/Reservoir.h"
#include "core/Scenario.h"
#include "project/database/DatabaseHydrologicalSeries.h"
#include "project/database/DatabaseIdsSnapshot.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/ElementTypeSaver.h"
#include "project/database/ReservoirCAVSaver.h"
#include "project/database/SerieSaver.h"
#include "project/database/SerieTypeLiteSaver.h"
#include "project/database/TimeStampHash.h"
#include "project/database/UnitTypeSaver.h"
#include "project/database/UserLiteSaver.h"

bool ProjectSaver::saveAsTransaction(SQLite::Database& storage,
                                     const std::vector<std::shared_ptr<Scenario>>& scenarios,
                                     const Progress& progress) {
  return DatabaseIdsSnapshot::writeOrRestore(
      storage, scenarios, [&] { save(storage, scenarios, makeKeys(storage), progress); });
}

ProjectSaver::Keys ProjectSaver::makeKeys(SQLite::Database& storage) {
  return {UserLiteSaver::defaultUserId(storage), ElementTypeSaver::save(storage),
          SerieTypeLiteSaver::save(storage, UnitTypeSaver::save(storage))};
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
