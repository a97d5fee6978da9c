#pragma once

#include <memory>
#include <vector>

#include "reports/automatic/AutomaticReportMetric.h"

// Makes the report metric of a kind.
class FactoryOfReportMetricTypeToReportMetric {
 public:
  // Throws std::invalid_argument
  // "FactoryOfReportMetricTypeToReportMetric::make(): invalid reportMetricType" for a kind
  // without a metric: "Nome de métrica 1" to "3" only name metrics a user makes.
  static std::shared_ptr<AutomaticReportMetric> make(ReportMetricType type);
  // Every kind that has a metric, in the order of their numbers.
  static std::vector<ReportMetricType> keys();
};
