#pragma once

#include <string>
#include <vector>

// The projects a folder offers: the name of each project file and its scenarios.
class ProjectConfigsLoader {
 public:
  struct ProjectConfig {
    std::string name;                    // the file's name without ".sjson"
    std::vector<std::string> sceneries;  // the scenario names, in the file's order
  };

  // Every "*.sjson" directly in folder, by name. Throws std::runtime_error
  // "ProjectConfigsLoader::loadProjectConfigs error in open JSON file" when one cannot be read,
  // is not JSON or lacks "scenarios" or a scenario's "name".
  static std::vector<ProjectConfig> loadProjectConfigs(const std::string& folder);
  // The list reply: { "projects": [{ "projname": "a","sceneries": ["s1","s2"] },...] }.
  static std::string createJsonOfAvailableProjects(const std::vector<ProjectConfig>& projects);

 private:
  static ProjectConfig loadProjectConfig(const std::string& path, const std::string& name);
};
