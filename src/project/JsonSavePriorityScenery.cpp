#include "project/JsonSavePriorityScenery.h"

#include <stdexcept>

#include "project/JsonSaveRuleScenery.h"
#include "scenario/PriorityScenario.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSavePriorityScenery::toJsonSpecific() const {
  const auto scenario = std::dynamic_pointer_cast<PriorityScenario>(getScenario());
  if (!scenario) {
    throw std::invalid_argument(
        "JsonSavePriorityScenery::toJson(): the scenario is no priority scenario");
  }
  const HydrologicalStateConfiguration& states = *scenario->getHydrologicalStateConfiguration();
  return {B::makeJsonKeyValueString("HydrologicalStateType",
                                    states.getCurrentHydrologicalStateType().getName()),
          B::makeJsonKeyValue("xValues", B::makeVectorOfFloatingValues(states.getXValues())),
          B::makeJsonKeyValue("numberOfStatesMonthly", states.getNumOfStatesMonthly()),
          JsonSaveRuleScenery::toJsonPumpingConfig(*scenario)};
}
