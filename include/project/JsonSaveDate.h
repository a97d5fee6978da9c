#pragma once

#include <string>

#include "common/Date.h"

// Writes a date object: {"day":d,"month":m,"year":y}.
class JsonSaveDate {
 public:
  // The date object of date.
  static std::string toJson(const Date& date);
};
