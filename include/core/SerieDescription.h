#pragma once

#include "vocabulary/EnumTypes.h"

// The kind and unit of one series of a container.
struct SerieDescription {
  SerieType type;
  Unit unit;
};
