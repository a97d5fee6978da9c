#pragma once

#include <string>

#include "common/Interval.h"

// Writes an interval object: {"begin":<date>,"end":<date>,"periodicity":"<name>"}.
class JsonSaveInterval {
 public:
  // The interval object of interval.
  static std::string toJson(const Interval& interval);
};
