#include "project/JsonSaveRuleScenery.h"

using B = JsonSaveBuilder;

std::string JsonSaveRuleScenery::toJsonPumpingConfig(const Scenario& scenario) {
  const std::string deficits =
      B::makeVectorOfFloatingValues(scenario.getPumpingCostsConfiguration());
  return B::makeJsonKeyValue(
      "pumpingConfig",
      B::makeObject({B::makeJsonKeyValue("demandDeficits", "[" + deficits + "]")}));
}

JsonSaveBuilder::Members JsonSaveRuleScenery::toJsonSpecific() const {
  return {toJsonPumpingConfig(*getScenario())};
}
