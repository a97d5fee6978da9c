#pragma once

#include <tuple>

#include "vocabulary/EnumTypes.h"

// The pair by which settings and result writers are chosen.
struct KeySettings {
  ScenarioType scenarioType;
  ElementType elementType;

  bool operator<(const KeySettings& other) const {
    return std::tie(scenarioType, elementType) < std::tie(other.scenarioType, other.elementType);
  }
};
