#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vocabulary/AutomaticReportSerieTypeEnum.h"

// Makes the kind object of a series operation from its plain value or from its display name.
class AutomaticReportSerieTypeEnumFactory {
 public:
  // Throws std::invalid_argument
  // "AutomaticReportSerieTypeEnumFactory::make(): invalid serieOperationType".
  static std::shared_ptr<AutomaticReportSerieTypeEnum> make(SerieOperationType type);
  // The operation whose display name is name, or null when none is so named.
  static std::shared_ptr<AutomaticReportSerieTypeEnum> findByName(const std::string& name);
  // Every operation, in the order of their numbers.
  static std::vector<SerieOperationType> keys();
};
