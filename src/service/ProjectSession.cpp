#include "service/ProjectSession.h"

#include <stdexcept>

#include "core/Scenario.h"
#include "managers/ProjectFunctions.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"

namespace {

const char* const keptFile = "project";
const char* const keptDatabase = "database";

}  // namespace

ProjectSession::ProjectSession(const std::string& path, Access access)
    : lock(exclusive()), file(path) {
  ProjectFunctions::closeProject();
  try {
    if (access == Access::readWrite) {
      backup.emplace();
      std::filesystem::copy_file(path, backup->path() / keptFile);
      std::filesystem::copy_file(LoadProject::databasePath(path), backup->path() / keptDatabase);
    }
    all = access == Access::readOnly ? LoadProject::loadReadOnly(path, nullptr)
                                     : LoadProject::load(path, nullptr);
  } catch (...) {
    ProjectFunctions::closeProject();
    throw;
  }
  for (unsigned int i = 0; i < all.size(); ++i) {
    ScenarioManager::getInstance().addScenery(i, all[i]);
  }
}

ProjectSession::~ProjectSession() {
  ProjectFunctions::closeProject();
  if (backup) restore();
}

void ProjectSession::restore() const {
  // The database closed above: the copies can take the files' place. A journal the failed write
  // left would replay over the copy, so it goes too.
  const auto options = std::filesystem::copy_options::overwrite_existing;
  std::error_code ignored;
  const std::string database = LoadProject::databasePath(file.string());
  for (const char* journal : {"-journal", "-wal", "-shm"}) {
    std::filesystem::remove(database + journal, ignored);
  }
  std::filesystem::copy_file(backup->path() / keptFile, file, options, ignored);
  std::filesystem::copy_file(backup->path() / keptDatabase, database, options, ignored);
}

std::shared_ptr<Scenario> ProjectSession::scenario(const std::string& name) const {
  for (const auto& candidate : all) {
    if (candidate->getName() == name) return candidate;
  }
  throw std::invalid_argument("ProjectSession: no scenario named \"" + name + "\"");
}

bool ProjectSession::loadLatestResults(const std::shared_ptr<Scenario>& scenario) const {
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto hashes =
      DatabaseSearch::getHashesOfResultsByScenID(storage, scenario->getDatabaseId());
  if (hashes.empty()) {
    return false;
  }
  DatabaseProjectLoader::loadResultsByHash(storage, scenario, hashes.back());
  return true;
}

std::unique_lock<std::mutex> ProjectSession::exclusive() {
  static std::mutex mutex;
  return std::unique_lock<std::mutex>(mutex);
}
