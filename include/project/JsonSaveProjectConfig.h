#pragma once

#include <string>

// Writes the project's configuration, the values of ConfigurationHeader, as
// "configuration":{...} in the order of the file format.
class JsonSaveProjectConfig {
 public:
  // The "configuration" key and object.
  static std::string toJson();
};
