#include "NewProjectTarget.h"

#include <stdexcept>

#include "managers/ProjectFunctions.h"
#include "project/database/LoadProject.h"
#include "project/database/SaveProject.h"
#include "scenario/ScenarioManager.h"

namespace {

// The scenarios are the only open project while they are saved, and nothing of it stays open
// after, whatever happens.
class SoleProject {
 public:
  explicit SoleProject(const std::vector<std::shared_ptr<Scenario>>& scenarios) {
    ProjectFunctions::closeProject();
    for (unsigned int i = 0; i < scenarios.size(); ++i) {
      ScenarioManager::getInstance().addScenery(i, scenarios[i]);
    }
  }
  ~SoleProject() { ProjectFunctions::closeProject(); }
  SoleProject(const SoleProject&) = delete;
  SoleProject& operator=(const SoleProject&) = delete;
};

}  // namespace

void NewProjectTarget::require(const std::filesystem::path& path) {
  std::error_code error;
  for (const auto& file :
       std::vector<std::filesystem::path>{path, LoadProject::databasePath(path.string())}) {
    if (std::filesystem::exists(file, error)) {
      throw std::runtime_error(file.string() + ": already exists (choose another name)");
    }
  }
  const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  if (!std::filesystem::is_directory(folder, error)) {
    throw std::runtime_error(folder.string() + ": no such folder");
  }
}

bool NewProjectTarget::save(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                            const std::filesystem::path& path, const Progress& progress) {
  bool written = false;
  try {
    SoleProject sole(scenarios);
    written = SaveProject::saveAs(path.string(), progress);
  } catch (...) {
    discard(path);
    throw;
  }
  if (!written) discard(path);
  return written;
}

void NewProjectTarget::discard(const std::filesystem::path& path) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  std::filesystem::remove(LoadProject::databasePath(path.string()), ignored);
}
