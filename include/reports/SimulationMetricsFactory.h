#pragma once

#include <memory>
#include <vector>

#include "reports/SimulationMetric.h"
#include "reports/SimulationMetricsEnum.h"

// The metrics of one category of elements, as handed out by SimulationMetricsAbstractFactory.
class SimulationMetricsFactory {
 public:
  virtual ~SimulationMetricsFactory() = default;

  // The metric of a kind of this category. Throws std::invalid_argument
  // "<factory class>::make(): invalid simulationMetricsEnum" for a kind of another category.
  virtual std::shared_ptr<SimulationMetric> makeMetric(const SimulationMetricsEnum& kind) const = 0;
  // The kinds of this category, in the order of their numbers.
  virtual std::vector<SimulationMetricsTypeDefinition> kinds() const = 0;
};
