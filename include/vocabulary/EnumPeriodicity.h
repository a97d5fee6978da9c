#pragma once

#include <string>
#include <utility>

#include "vocabulary/EnumTypes.h"

// A periodicity with the format in which a date of that periodicity is shown ("%m/%Y").
class EnumPeriodicity {
 public:
  // The monthly periodicity, "Mensal".
  EnumPeriodicity();
  EnumPeriodicity(Periodicity type, std::string name, std::string format)
      : type(type), name(std::move(name)), format(std::move(format)) {}

  Periodicity getType() const { return type; }
  const std::string& getName() const { return name; }
  const std::string& getFormat() const { return format; }

  bool operator==(const EnumPeriodicity& other) const {
    return type == other.type && name == other.name;
  }
  bool operator!=(const EnumPeriodicity& other) const { return !(*this == other); }

 private:
  Periodicity type;
  std::string name;
  std::string format;
};
