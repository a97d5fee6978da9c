#include "core/HydrologicalStateConfiguration.h"

#include <numeric>
#include <stdexcept>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/PrioritySettings.h"
#include "core/Scenario.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr double kShareTolerance = 1e-06;

// The settings of every reservoir and demand of the scenario, enabled or not: each keeps one pair
// per state whether or not it runs.
std::vector<std::shared_ptr<PrioritySettings>> prioritySettingsOf(const Scenario& scenario) {
  std::vector<std::shared_ptr<PrioritySettings>> result;
  for (const auto& element :
       ElementsFilter::filterByType(scenario.getElements(), ElementSets::demandsWithReservoir())) {
    result.push_back(
        Scenario::getSettings<PrioritySettings>(element, scenario.getSettingsManager()));
  }
  return result;
}

}  // namespace

HydrologicalStateConfiguration::HydrologicalStateConfiguration()
    : currentHydrologicalStateType(Vocabulary::of(HydrologicalStateType::none)) {}

void HydrologicalStateConfiguration::setXValues(const std::vector<double>& values) {
  if (!isXValuesValid()) {
    throw std::invalid_argument(
        "HydrologicalStateConfiguration::setXValues(): Sum of xValues greater than 1.0");
  }
  xValues = values;
}

void HydrologicalStateConfiguration::setXValueByIndex(unsigned int index, double value) {
  if (index >= xValues.size()) {
    throw std::out_of_range("PriorityScenario::setHydrologicalStateXValue: invalid index");
  }
  xValues[index] = value;
}

bool HydrologicalStateConfiguration::isXValuesValid() const {
  return std::accumulate(xValues.begin(), xValues.end(), 0.0) <= 1.0 + kShareTolerance;
}

void HydrologicalStateConfiguration::setNumOfStates(unsigned int numOfStates,
                                                    const std::shared_ptr<Scenario>& scenario) {
  if (numOfStates == 0) {
    throw std::invalid_argument(
        "HydrologicalStateConfiguration::setNumOfStates(): at least one state");
  }
  const auto settings = prioritySettingsOf(*scenario);
  while (xValues.size() >= numOfStates) {
    xValues.pop_back();
    for (const auto& each : settings) each->popBackPairOfPrioritySerie();
  }
  xValues.resize(numOfStates - 1, 0.0);
  for (const auto& each : settings) {
    while (each->getPrioritySeries().size() < numOfStates) {
      each->addDefaultPairOfPrioritySerie(scenario->getInterval());
    }
  }
}

std::shared_ptr<HydrologicalStateConfiguration> HydrologicalStateConfiguration::copy() const {
  return std::make_shared<HydrologicalStateConfiguration>(*this);
}
