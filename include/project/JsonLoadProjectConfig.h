#pragma once

#include <nlohmann/json.hpp>

// Reads the project's configuration from the root of a project file ("project", then
// "configuration") into ConfigurationHeader. Every key is optional: an absent or null key, or an
// absent object, leaves the value as it was.
class JsonLoadProjectConfig {
 public:
  // Applies the configuration of root, all or nothing. Throws nlohmann::json::type_error for a
  // value of the wrong type, JsonLoadException for a colour without r, g or b, and
  // std::invalid_argument from ConfigurationHeader for a UTM zone outside 1..60 or a hemisphere
  // other than "Sul" and "Norte".
  static void load(const nlohmann::json& root);
};
