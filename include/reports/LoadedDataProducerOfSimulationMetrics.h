#pragma once

#include <memory>
#include <vector>

#include "core/Element.h"
#include "core/Scenario.h"
#include "reports/LoadedData.h"
#include "reports/SimulationMetricsEnum.h"
#include "vocabulary/EnumTypes.h"

// Builds the table in which users compare elements by simulation metrics.
class LoadedDataProducerOfSimulationMetrics {
 public:
  // A table with a text column "Elemento" and one column per metric, headed by its name and unit
  // ("Vulnerabilidade (%)") and of its type of data; one row per element, its name and then its
  // metrics over window runIndex. Throws SimulationMetricsAbstractFactory's and the category's
  // factory's std::invalid_argument for a category without metrics or a metric of another
  // category, and SimulationMetric::calculate's failures.
  static LoadedData getLoadedDataOfSimulationMetrics(
      ElementGroup::ElementCategoriesEnum category,
      const std::vector<std::shared_ptr<Element>>& elements,
      const std::vector<std::shared_ptr<SimulationMetricsEnum>>& metrics,
      const std::shared_ptr<Scenario>& scenario, unsigned int runIndex);
};
