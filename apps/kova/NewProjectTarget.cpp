#include "NewProjectTarget.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "HostText.h"
#include "managers/ProjectFunctions.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
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

std::filesystem::path databaseOf(const std::filesystem::path& path) {
  return LoadProject::databasePath(path.string());
}

}  // namespace

void NewProjectTarget::require(const std::filesystem::path& path) {
  std::error_code error;
  if (std::filesystem::exists(path, error)) {
    throw std::runtime_error(path.string() + ": " + tr("already exists (choose another name)"));
  }
  // A database without its project file may be what an interrupted save of another program
  // left; it is named, never removed.
  const auto database = databaseOf(path);
  if (std::filesystem::exists(database, error)) {
    throw std::runtime_error(database.string() + ": " + tr("already exists (choose another name)"));
  }
  const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
  if (!std::filesystem::is_directory(folder, error)) {
    throw std::runtime_error(folder.string() + ": " + tr("no such folder"));
  }
}

bool NewProjectTarget::save(const std::vector<std::shared_ptr<Scenario>>& scenarios,
                            const std::filesystem::path& path, const Progress& progress) {
  return writeInPlace(path, [&](const std::string& partial) {
    SoleProject sole(scenarios);
    return SaveProject::saveAs(partial, progress);
  });
}

bool NewProjectTarget::saveOpenProject(const std::filesystem::path& path,
                                       const Progress& progress) {
  return writeInPlace(path, [&](const std::string& partial) {
    const bool written = SaveProject::saveAs(partial, progress);
    // The save left the new database open; it must be closed before it is renamed.
    SQLStorage::deleteInstance();
    return written;
  });
}

std::filesystem::path NewProjectTarget::partialPath(const std::filesystem::path& path) {
  return path.parent_path() / ("." + path.filename().string() + ".partial");
}

void NewProjectTarget::discard(const std::filesystem::path& path) {
  std::error_code ignored;
  const std::string database = databaseOf(path).string();
  for (const std::string& file :
       {path.string(), database, database + "-journal", database + "-wal", database + "-shm"}) {
    std::filesystem::remove(file, ignored);
  }
}

bool NewProjectTarget::writeInPlace(const std::filesystem::path& path,
                                    const std::function<bool(const std::string&)>& write) {
  const auto partial = partialPath(path);
  discard(partial);
  bool written = false;
  try {
    written = write(partial.string());
    if (written) requireComplete(partial, path);
  } catch (...) {
    SQLStorage::deleteInstance();
    discard(partial);
    throw;
  }
  if (!written) {
    discard(partial);
    return false;
  }
  std::error_code error;
  std::filesystem::rename(databaseOf(partial), databaseOf(path), error);
  if (!error) std::filesystem::rename(partial, path, error);
  if (error) {
    discard(partial);
    discard(path);
    throw std::runtime_error(path.string() + ": " +
                             tr("could not be put in place ({1})", {error.message()}));
  }
  return true;
}

void NewProjectTarget::requireComplete(const std::filesystem::path& written,
                                       const std::filesystem::path& path) {
  std::ifstream file(written);
  // A full disk lets the project file be cut short without the writer knowing.
  if (!file || !nlohmann::json::accept(file)) {
    throw std::runtime_error(path.string() + ": " +
                             tr("could not be written completely (disk full?)"));
  }
}
