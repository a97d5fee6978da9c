#pragma once

#include <memory>

#include "reports/SimulationMetricsFactory.h"
#include "vocabulary/EnumTypes.h"

// Gives the metric factory of a category of elements: demands or reservoirs.
class SimulationMetricsAbstractFactory {
 public:
  // Throws std::invalid_argument "SimulationMetricsAbstractFactory::make(): invalid
  // elementCategory" for a category without metrics.
  static std::shared_ptr<SimulationMetricsFactory> make(
      ElementGroup::ElementCategoriesEnum category);
  // The makers of the map.
  static std::shared_ptr<SimulationMetricsFactory> makeSimulationFactoryOfDemands();
  static std::shared_ptr<SimulationMetricsFactory> makeSimulationFactoryOfReservoirs();
};
