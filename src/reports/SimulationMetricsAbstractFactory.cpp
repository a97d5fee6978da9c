#include "reports/SimulationMetricsAbstractFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "reports/SimulationMetricsFactoryToDemand.h"
#include "reports/SimulationMetricsFactoryToReservoir.h"

std::shared_ptr<SimulationMetricsFactory> SimulationMetricsAbstractFactory::make(
    ElementGroup::ElementCategoriesEnum category) {
  using Category = ElementGroup::ElementCategoriesEnum;
  static const std::map<Category, std::function<std::shared_ptr<SimulationMetricsFactory>()>>
      mapOfCallbacks = {
          {Category::demand, makeSimulationFactoryOfDemands},
          {Category::reservoir, makeSimulationFactoryOfReservoirs},
      };
  auto it = mapOfCallbacks.find(category);
  if (it == mapOfCallbacks.end()) {
    throw std::invalid_argument(
        "SimulationMetricsAbstractFactory::make(): invalid elementCategory");
  }
  return it->second();
}

std::shared_ptr<SimulationMetricsFactory>
SimulationMetricsAbstractFactory::makeSimulationFactoryOfDemands() {
  return std::make_shared<SimulationMetricsFactoryToDemand>();
}

std::shared_ptr<SimulationMetricsFactory>
SimulationMetricsAbstractFactory::makeSimulationFactoryOfReservoirs() {
  return std::make_shared<SimulationMetricsFactoryToReservoir>();
}
