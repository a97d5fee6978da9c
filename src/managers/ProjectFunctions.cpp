#include "managers/ProjectFunctions.h"

#include "common/Calendar.h"
#include "core/ConfigurationHeader.h"
#include "operation/ExecutionContinuous.h"
#include "project/JsonSaveBuilder.h"
#include "project/database/DatabaseCopy.h"
#include "project/database/FileUtils.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "project/database/SaveProject.h"
#include "scenario/PriorityScenario.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

std::shared_ptr<PriorityScenario> ProjectFunctions::createBlankPriorityScenery() {
  ScenarioManager& manager = ScenarioManager::getInstance();
  const unsigned int id = manager.getNextScenarioId();
  manager.setNextScenarioId(id + 1);
  const unsigned int year = Calendar::getCurrentDate().getYear();
  const Interval months(Date(year, 1, 1), Date(year, 12, 1), Vocabulary::of(Periodicity::monthly));
  return std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), id, months,
                                            "Cenário " + std::to_string(id));
}

bool ProjectFunctions::createBlankPriorityProject(const std::string& path) {
  closeProject();
  ScenarioManager::getInstance().addScenery(0, createBlankPriorityScenery());
  return SaveProject::saveAs(path, nullptr);
}

void ProjectFunctions::closeProject() {
  ScenarioManager::getInstance().clear();
  SQLStorage::deleteInstance();
  ConfigurationHeader::reset();
}

bool ProjectFunctions::saveJsonProjectAsWithOlderDatabase(const std::string& path, int64_t userId,
                                                          const Progress& progress) {
  SQLStorage& holder = SQLStorage::getInstance();
  const std::string databasePath = LoadProject::databasePath(path);
  if (FileUtils::isSameFile(holder.getPath(), databasePath)) return JsonSaveBuilder::save(path);
  if (!DatabaseCopy::copyDatabase(holder.getStorageRef(), databasePath, userId, progress)) {
    return false;
  }
  holder.replaceOldStorage();
  return JsonSaveBuilder::save(path);
}

bool ProjectFunctions::saveJsonProjectAsWithoutOlderDatabase(const std::string& path,
                                                             const Progress& progress) {
  return SaveProject::saveAs(path, progress);
}
