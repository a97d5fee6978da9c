#include "project/database/SQLiteOrmSaver.h"

#include <vector>

#include "project/database/ProjectSaver.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"

bool SQLiteOrmSaver::save(const std::string& path,
                          const std::function<bool(long, long)>& progress) {
  auto& storage = SQLStorage::getInstance(path).getStorageRef();
  std::vector<std::shared_ptr<Scenario>> scenarios;
  for (const auto& entry : ScenarioManager::getInstance().getSceneries()) {
    scenarios.push_back(entry.second);
  }
  return ProjectSaver::saveAsTransaction(storage, scenarios, progress);
}
