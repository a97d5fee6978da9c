#include "OpenProject.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "ErrorText.h"
#include "HostText.h"
#include "UsageError.h"
#include "common/PeriodWalker.h"
#include "core/Scenario.h"
#include "managers/ProjectFunctions.h"
#include "project/JsonLoadPlace.h"
#include "project/database/DatabaseProjectLoader.h"
#include "project/database/DatabaseSearch.h"
#include "project/database/LoadProject.h"
#include "project/database/SQLStorage.h"
#include "scenario/ScenarioManager.h"

namespace {

// Names come from the project file, which does not limit them: messages show them cut.
std::string quoted(const std::string& text) {
  return "\"" + JsonLoadPlace::shortName(text) + "\"";
}

// The first date of a window that a result series holding values has no value for, as
// "element E, series S, YYYY-MM-DD"; empty when every such series covers every date of its
// window. A series without any value is one the run does not write, not a gap.
std::string firstGap(const Scenario& scenario) {
  const auto windows = scenario.calcVectorOfIntervals();
  for (const auto& element : scenario.getElements()) {
    if (!element->isEnabled()) continue;
    const auto held = std::min(windows.size(), element->getOutputSeries().size());
    for (std::size_t window = 0; window < held; ++window) {
      for (const auto& serie : element->getVectorOfSeries(static_cast<unsigned int>(window))) {
        const auto& values = serie->getMapOfJulianToValues();
        if (values.empty()) continue;
        std::string missing;
        PeriodWalker::forEach(windows[window], [&](const Date& date) {
          if (missing.empty() && values.find(Date::julian(date)) == values.end())
            missing = date.toString("%Y-%m-%d");
        });
        if (!missing.empty())
          return tr("element {1}, {2}, {3}",
                    {quoted(element->getName()), quoted(serie->getName()), missing});
      }
    }
  }
  return "";
}

void requireReadableFile(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) {
    throw std::runtime_error(path.string() + ": " + tr("no such project file"));
  }
  if (!std::filesystem::is_regular_file(path, error)) {
    throw std::runtime_error(path.string() + ": " + tr("not a project file"));
  }
  if (!std::ifstream(path)) throw std::runtime_error(path.string() + ": " + tr("cannot be read"));
}

void requireWritableFile(const std::filesystem::path& path) {
  std::error_code error;
  if (std::filesystem::exists(path, error) && ::access(path.c_str(), W_OK) != 0) {
    throw std::runtime_error(path.string() + ": " + tr("cannot be written (no write permission)"));
  }
}

std::vector<std::shared_ptr<Scenario>> load(const std::filesystem::path& path,
                                            const OpenProject::Progress& progress,
                                            OpenProject::Access access) {
  if (access == OpenProject::Access::readOnly)
    return LoadProject::loadReadOnly(path.string(), progress);
  requireWritableFile(path);
  requireWritableFile(LoadProject::databasePath(path.string()));
  auto scenarios = LoadProject::load(path.string(), progress);
  SQLStorage::getInstance().requireWritable();
  return scenarios;
}

}  // namespace

OpenProject::OpenProject(const std::filesystem::path& path, const Progress& progress, Access access)
    : file(path) {
  requireReadableFile(path);
  ProjectFunctions::closeProject();
  try {
    all = load(path, progress, access);
  } catch (const std::exception& error) {
    ProjectFunctions::closeProject();
    const std::string text = ErrorText::of(error);
    // Some failures already start with the file they concern.
    throw std::runtime_error(text.rfind(path.string(), 0) == 0 ? text
                                                               : path.string() + ": " + text);
  }
  if (all.empty()) {
    ProjectFunctions::closeProject();
    throw std::runtime_error(path.string() + ": " + tr("the project has no scenario"));
  }
  for (unsigned int i = 0; i < all.size(); ++i)
    ScenarioManager::getInstance().addScenery(i, all[i]);
}

OpenProject::~OpenProject() { ProjectFunctions::closeProject(); }

std::shared_ptr<Scenario> OpenProject::scenario(const std::string& name) const {
  std::string names;
  for (const auto& candidate : all) {
    if (candidate->getName() == name) return candidate;
    names += (names.empty() ? "" : ", ") + quoted(candidate->getName());
  }
  throw std::runtime_error(file.string() + ": " +
                           tr("no scenario named {1} (scenarios: {2})",
                              {quoted(name), names.empty() ? tr("none") : names}));
}

std::vector<std::shared_ptr<Scenario>> OpenProject::select(
    const std::vector<std::string>& names) const {
  if (names.empty()) return all;
  std::vector<std::shared_ptr<Scenario>> chosen;
  for (const auto& name : names) chosen.push_back(scenario(name));
  return chosen;
}

unsigned int OpenProject::indexOf(const std::shared_ptr<Scenario>& scenario) const {
  for (unsigned int i = 0; i < all.size(); ++i) {
    if (all[i] == scenario) return i;
  }
  throw std::logic_error("OpenProject::indexOf(): scenario not in the project");
}

void OpenProject::requireFreeName(const std::string& name) const {
  for (const auto& scenario : all) {
    if (scenario->getName() == name) {
      throw UsageError(tr("the project already has a scenario named \"{1}\"", {name}));
    }
  }
}

void OpenProject::adopt(const std::shared_ptr<Scenario>& scenario) {
  auto& manager = ScenarioManager::getInstance();
  const auto& sceneries = manager.getSceneries();
  manager.addScenery(sceneries.empty() ? 0 : sceneries.rbegin()->first + 1, scenario);
  all.push_back(scenario);
}

void OpenProject::loadLatestResults(const std::shared_ptr<Scenario>& scenario) const {
  const ScenarioType kind = scenario->getScenarioType().getType();
  if (kind == ScenarioType::guaranteeCurve || kind == ScenarioType::systemGuaranteeCurve) {
    throw std::runtime_error(
        file.string() + ": " +
        tr("scenario {1} is a guarantee curve, which keeps its curve and no results: see kova "
           "curve {2} --scenario {1}",
           {quoted(scenario->getName()), file.string()}));
  }
  auto& storage = SQLStorage::getInstance().getStorageRef();
  const auto hashes =
      DatabaseSearch::getHashesOfResultsByScenID(storage, scenario->getDatabaseId());
  if (hashes.empty()) {
    throw std::runtime_error(
        file.string() + ": " +
        tr("scenario {1} has no stored results (run it first: kova run {2} --scenario {1})",
           {quoted(scenario->getName()), file.string()}));
  }
  DatabaseProjectLoader::loadResultsByHash(storage, scenario, hashes.back());
  const std::string gap = firstGap(*scenario);
  if (!gap.empty()) {
    throw std::runtime_error(file.string() + ": " +
                             tr("the stored results of scenario {1} do not cover its dates ({2}); "
                                "run it again",
                                {quoted(scenario->getName()), gap}));
  }
}
