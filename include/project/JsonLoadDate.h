#pragma once

#include <nlohmann/json.hpp>

#include "common/Date.h"

// Reads a date object; day, month and year are required.
class JsonLoadDate {
 public:
  // The date of object. Throws JsonLoadException for a missing key, nlohmann::json::type_error
  // for a value that is no integer, and std::invalid_argument from Date for a date that does not
  // exist.
  static Date load(const nlohmann::json& object);
};
