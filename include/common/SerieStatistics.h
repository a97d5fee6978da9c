#pragma once

#include "common/Serie.h"

// Statistics over every stored value of a series, whatever its interval.
class SerieStatistics {
 public:
  // The sum of all stored values, in date order; 0.0 for an empty series.
  static double sum(const Serie& serie);
};
