#include "project/database/LoadProject.h"

#include "project/JsonProjectLoader.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/FileUtils.h"
#include "project/database/JsonLoadExceptionPermissionDenied.h"
#include "project/database/SQLStorage.h"

std::vector<std::shared_ptr<Scenario>> LoadProject::load(
    const std::string& path, const std::function<bool(long, long)>& progress) {
  const std::string database = databasePath(path);
  if (!FileUtils::hasFileWritePermission(path) || !FileUtils::hasFileWritePermission(database)) {
    throw JsonLoadExceptionPermissionDenied();
  }
  auto& storage = SQLStorage::getInstance(database).getStorageRef();
  auto scenarios = JsonProjectLoader::load(path);
  DatabaseProjectLoader::load(storage, scenarios, progress);
  return scenarios;
}

std::string LoadProject::databasePath(const std::string& path) { return path + ".sqlite"; }
