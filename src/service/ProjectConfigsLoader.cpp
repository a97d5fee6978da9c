#include "service/ProjectConfigsLoader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "service/JsonText.h"

namespace {

const char* const openError = "ProjectConfigsLoader::loadProjectConfigs error in open JSON file";

}  // namespace

std::vector<ProjectConfigsLoader::ProjectConfig> ProjectConfigsLoader::loadProjectConfigs(
    const std::string& folder) {
  std::vector<ProjectConfig> projects;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const auto& path = entry.path();
    if (path.extension() == ".sjson" && entry.is_regular_file()) {
      projects.push_back(loadProjectConfig(path.string(), path.stem().string()));
    }
  }
  std::sort(projects.begin(), projects.end(),
            [](const ProjectConfig& a, const ProjectConfig& b) { return a.name < b.name; });
  return projects;
}

ProjectConfigsLoader::ProjectConfig ProjectConfigsLoader::loadProjectConfig(
    const std::string& path, const std::string& name) {
  std::ifstream file(path);
  if (!file) {
    throw std::runtime_error(openError);
  }
  ProjectConfig project{name, {}};
  try {
    const auto json = nlohmann::json::parse(file);
    for (const auto& scenario : json.at("scenarios")) {
      project.sceneries.push_back(scenario.at("name").get<std::string>());
    }
  } catch (const nlohmann::json::exception&) {
    throw std::runtime_error(openError);
  }
  return project;
}

std::string ProjectConfigsLoader::createJsonOfAvailableProjects(
    const std::vector<ProjectConfig>& projects) {
  std::string text = "{ \"projects\": [";
  for (std::size_t p = 0; p < projects.size(); ++p) {
    text += (p ? "," : "") + std::string("{ \"projname\": ") + JsonText::quote(projects[p].name) +
            ",\"sceneries\": [";
    for (std::size_t s = 0; s < projects[p].sceneries.size(); ++s) {
      text += (s ? "," : "") + JsonText::quote(projects[p].sceneries[s]);
    }
    text += "] }";
  }
  return text + "] }";
}
