#include "project/database/SaveProject.h"

#include <memory>
#include <vector>

#include "project/JsonSaveBuilder.h"
#include "project/database/LoadProject.h"
#include "project/database/ProjectSaver.h"
#include "project/database/SQLStorage.h"
#include "project/database/SQLiteOrmSaver.h"
#include "scenario/ScenarioManager.h"

bool SaveProject::save(const std::string& path, const Progress&) {
  return JsonSaveBuilder::save(path);
}

bool SaveProject::saveAs(const std::string& path, const Progress& progress) {
  if (!SQLiteOrmSaver::save(LoadProject::databasePath(path), progress)) return false;
  return JsonSaveBuilder::save(path);
}

bool SaveProject::saveAfterCommitData(const std::string& path, const Progress& progress) {
  std::vector<std::shared_ptr<Scenario>> scenarios;
  for (const auto& entry : ScenarioManager::getInstance().getSceneries()) {
    scenarios.push_back(entry.second);
  }
  auto& storage = SQLStorage::getInstance().getStorageRef();
  if (!ProjectSaver::saveAsTransaction(storage, scenarios, progress)) return false;
  return JsonSaveBuilder::save(path);
}
