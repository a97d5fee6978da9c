#include "project/JsonSaveOptRuleScenery.h"

#include "optimization/RuleOptimizationScenario.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSaveOptRuleScenery::toJsonSpecific() const {
  const auto& scenario = dynamic_cast<const RuleOptimizationScenario&>(*getScenario());
  return {B::makeJsonKeyValue("solutions", B::makeArray(scenario.getMatrixOfSolutions(),
                                                        B::makeVectorOfExactValues)),
          B::makeJsonKeyValue("objectiveFunctionsValues",
                              B::makeArray(scenario.getMatrixOfObjectiveFunctionsValues(),
                                           B::makeVectorOfExactValues))};
}
