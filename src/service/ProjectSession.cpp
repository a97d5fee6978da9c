#include "service/ProjectSession.h"

#include <stdexcept>

#include "core/Scenario.h"
#include "managers/ProjectFunctions.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"

ProjectSession::ProjectSession(const std::string& path, Access access) : lock(exclusive()) {
  ProjectFunctions::closeProject();
  try {
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

ProjectSession::~ProjectSession() { ProjectFunctions::closeProject(); }

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
