#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

// Where the service finds a project named in a request, and the refusal of any name that could
// lead out of the service's folder.
class ProjectLocation {
 public:
  // The project file: "<folder>/personalized/<code>/<projname>.sjson" when request has "code",
  // "<folder>/<projname>.sjson" otherwise. Throws what checkName throws, and
  // nlohmann::json's errors for a missing or non-text "projname".
  static std::string projectPath(const std::string& folder, const nlohmann::json& request);
  // The project database: the project file's path with ".sqlite" appended.
  static std::string databasePath(const std::string& projectPath);
  // Refuses, with std::invalid_argument "ProjectLocation: <key> \"<value>\" is not a plain name",
  // a value that is empty, "." or "..", holds "/", "\\", ":", NUL or "..", or starts as an
  // absolute path.
  static void checkName(const std::string& key, const std::string& value);
};
