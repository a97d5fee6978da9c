#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vocabulary/ReportMetricTypeEnum.h"

// Makes the kind object of a report metric from its plain value or from its display name.
class ReportMetricTypeEnumFactory {
 public:
  // Throws std::invalid_argument "ReportMetricTypeEnumFactory::make(): invalid reportMetricType".
  static std::shared_ptr<ReportMetricTypeEnum> make(ReportMetricType type);
  // The kind whose display name is name, or null when no kind is so named.
  static std::shared_ptr<ReportMetricTypeEnum> findByName(const std::string& name);
  // Every kind, in the order of their numbers.
  static std::vector<ReportMetricType> keys();
};
