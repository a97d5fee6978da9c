#pragma once

#include <memory>
#include <vector>

#include "reports/SimulationMetricsFactory.h"

// Makes the metrics of a demand.
class SimulationMetricsFactoryToDemand : public SimulationMetricsFactory {
 public:
  // Throws std::invalid_argument
  // "SimulationMetricsFactoryToDemand::make(): invalid simulationMetricsEnum" for a kind that is
  // not a demand's.
  static std::shared_ptr<SimulationMetric> make(const SimulationMetricsEnum& kind);
  // The kinds of a demand, in the order of their numbers.
  static std::vector<SimulationMetricsTypeDefinition> keys();

  // make() and keys() through the category's factory object.
  std::shared_ptr<SimulationMetric> makeMetric(const SimulationMetricsEnum& kind) const override {
    return make(kind);
  }
  std::vector<SimulationMetricsTypeDefinition> kinds() const override { return keys(); }
};
