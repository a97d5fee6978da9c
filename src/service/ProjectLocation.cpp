#include "service/ProjectLocation.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

std::string ProjectLocation::projectPath(const std::string& folder, const nlohmann::json& request) {
  const auto projname = request.at("projname").get<std::string>();
  checkName("projname", projname);
  std::string path = folder + "/";
  if (request.contains("code")) {
    const auto& code = request.at("code");
    const std::string text = code.is_string() ? code.get<std::string>() : code.dump();
    checkName("code", text);
    path += "personalized/" + text + "/";
  }
  return path + projname + ".sjson";
}

std::string ProjectLocation::databasePath(const std::string& projectPath) {
  return projectPath + ".sqlite";
}

void ProjectLocation::checkName(const std::string& key, const std::string& value) {
  const bool leaves = value.empty() || value == "." ||
                      value.find_first_of(std::string("/\\:\0", 4)) != std::string::npos ||
                      value.find("..") != std::string::npos || value.front() == '~';
  if (leaves) {
    // The value may hold a NUL or anything else: what is shown stops at the first control.
    std::string shown;
    for (char c : value) {
      if (static_cast<unsigned char>(c) < 0x20) break;
      shown += c;
    }
    throw std::invalid_argument("ProjectLocation: " + key + " \"" + shown +
                                "\" is not a plain name");
  }
}
