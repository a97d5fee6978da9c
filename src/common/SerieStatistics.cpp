#include "common/SerieStatistics.h"

double SerieStatistics::sum(const Serie& serie) {
  double total = 0.0;
  for (const auto& entry : serie.getMapOfJulianToValues()) total += entry.second;
  return total;
}
