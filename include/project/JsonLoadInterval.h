#pragma once

#include <nlohmann/json.hpp>

#include "common/Interval.h"

// Reads an interval object; begin, end and periodicity are required.
class JsonLoadInterval {
 public:
  // The interval of object. Throws as JsonLoadDate, std::invalid_argument
  // "JsonLoadInterval::load(): invalid periodicity" for a name outside the vocabulary and
  // std::invalid_argument from Interval when end comes before begin.
  static Interval load(const nlohmann::json& object);
};
