#pragma once

#include <memory>
#include <vector>

#include "reports/SimulationMetricsEnum.h"

// Makes the kind object of a simulation metric from its plain value.
class SimulationMetricsEnumFactoryByType {
 public:
  // Throws std::invalid_argument
  // "SimulationMetricsEnumFactoryByType::make(): invalid simulationMetricsType".
  static std::shared_ptr<SimulationMetricsEnum> make(SimulationMetricsTypeDefinition type);
  // Every kind, in the order of their numbers.
  static std::vector<SimulationMetricsTypeDefinition> keys();
};
