#include "project/JsonSaveRuleScenery.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSaveRuleScenery::toJsonSpecific() const {
  const std::string deficits =
      B::makeVectorOfFloatingValues(getScenario()->getPumpingCostsConfiguration());
  return {B::makeJsonKeyValue("pumpingConfig", B::makeObject({B::makeJsonKeyValue(
                                                   "demandDeficits", "[" + deficits + "]")}))};
}
