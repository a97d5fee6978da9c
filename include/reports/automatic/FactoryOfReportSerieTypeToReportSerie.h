#pragma once

#include <memory>
#include <vector>

#include "reports/automatic/AutomaticReportSerie.h"

// Makes the series operation of a kind.
class FactoryOfReportSerieTypeToReportSerie {
 public:
  // Throws std::invalid_argument
  // "FactoryOfReportSerieTypeToReportSerie::make(): invalid serieOperationType".
  static std::shared_ptr<AutomaticReportSerie> make(SerieOperationType type);
  // Every operation, in the order of their numbers.
  static std::vector<SerieOperationType> keys();
};
