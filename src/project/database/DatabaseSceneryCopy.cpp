#include "project/database/DatabaseSceneryCopy.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <stdexcept>

#include "common/Calendar.h"
#include "core/KOVACoreProgressBar.h"
#include "core/Scenario.h"
#include "project/database/DatabaseIdsSnapshot.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/ProjectSaver.h"
#include "project/database/SQLStorage.h"
#include "project/database/TimeStampHash.h"

namespace {

bool hasScenarioRow(SQLite::Database& storage, int64_t databaseId) {
  SQLite::Statement query(storage, "SELECT 1 FROM Scenario WHERE databaseId = ?");
  query.bind(1, databaseId);
  return query.executeStep();
}

void writeElements(SQLite::Database& storage, const std::shared_ptr<Scenario>& scenario,
                   const DatabaseSceneryCopy::Progress& progress) {
  const int64_t scenarioId = scenario->getDatabaseId();
  if (!hasScenarioRow(storage, scenarioId)) {
    throw std::invalid_argument("DatabaseSceneryCopy::sceneryCopy(): scenario not in the database");
  }
  const ProjectSaver::Keys keys = ProjectSaver::makeKeys(storage);
  const std::string timeStamp = Calendar::getTimeStamp();
  const std::string hash = TimeStampHash::make(scenarioId, timeStamp);
  const auto total = static_cast<long>(scenario->getElements().size());
  long done = 0;
  for (const auto& element : scenario->getElements()) {
    DatabaseInsert::insertElementRow(storage, scenarioId, *element, keys.elementTypeIds);
    ProjectSaver::saveElement(storage, scenario, element, keys, timeStamp, hash);
    if (progress && !progress(++done, total)) {
      throw KOVACoreProgressBar::ProgressCancelException();
    }
  }
}

}  // namespace

bool DatabaseSceneryCopy::sceneryCopy(const std::shared_ptr<Scenario>& scenario,
                                      const Progress& progress) {
  return sceneryCopy(SQLStorage::getInstance().getStorageRef(), scenario, progress);
}

bool DatabaseSceneryCopy::sceneryCopy(SQLite::Database& storage,
                                      const std::shared_ptr<Scenario>& scenario,
                                      const Progress& progress) {
  return DatabaseIdsSnapshot::writeOrRestore(storage, {scenario},
                                             [&] { writeElements(storage, scenario, progress); });
}
