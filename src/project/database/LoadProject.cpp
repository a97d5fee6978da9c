#include "project/database/LoadProject.h"

#include <filesystem>
#include <stdexcept>

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

std::vector<std::shared_ptr<Scenario>> LoadProject::loadReadOnly(
    const std::string& path, const std::function<bool(long, long)>& progress) {
  const std::string database = databasePath(path);
  std::error_code error;
  if (!std::filesystem::is_regular_file(std::filesystem::u8path(database), error)) {
    throw std::runtime_error(database + ": no such project database");
  }
  auto scenarios = JsonProjectLoader::load(path);
  auto& storage = SQLStorage::getInstanceReadOnly(database).getStorageRef();
  DatabaseProjectLoader::load(storage, scenarios, progress);
  return scenarios;
}

std::string LoadProject::databasePath(const std::string& path) { return path + ".sqlite"; }
