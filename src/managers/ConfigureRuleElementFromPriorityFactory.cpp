#include "managers/ConfigureRuleElementFromPriorityFactory.h"

#include <map>
#include <stdexcept>

#include "managers/ConfigureRuleElementFromPriorityDefault.h"
#include "managers/ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm.h"

namespace {

using Maker = void (*)(unsigned int, const PriorityScenario&, RuleScenario&);

const std::map<ConfigureRuleElementType, Maker>& makers() {
  using C = ConfigureRuleElementType;
  static const std::map<ConfigureRuleElementType, Maker> table{
      {C::defaultSerie, ConfigureRuleElementFromPriorityFactory::makeDefault},
      {C::knn, ConfigureRuleElementFromPriorityFactory::makeKNNColVolumes},
      {C::regressionTree, ConfigureRuleElementFromPriorityFactory::makeRegressionTreeColVolumes},
      {C::randomForest,
       ConfigureRuleElementFromPriorityFactory::makeRegressionRandomForestColVolumes},
  };
  return table;
}

}  // namespace

void ConfigureRuleElementFromPriorityFactory::make(ConfigureRuleElementType type,
                                                   unsigned int elementId,
                                                   const PriorityScenario& priorityScenario,
                                                   RuleScenario& ruleScenario) {
  const auto found = makers().find(type);
  if (found == makers().end()) {
    throw std::invalid_argument("ConfigureRuleElementFromPriorityFactory::make(): invalid type");
  }
  found->second(elementId, priorityScenario, ruleScenario);
}

void ConfigureRuleElementFromPriorityFactory::makeDefault(unsigned int elementId,
                                                          const PriorityScenario& priorityScenario,
                                                          RuleScenario& ruleScenario) {
  ConfigureRuleElementFromPriorityDefault().configure(elementId, priorityScenario, ruleScenario);
}

void ConfigureRuleElementFromPriorityFactory::makeKNNColVolumes(
    unsigned int elementId, const PriorityScenario& priorityScenario, RuleScenario& ruleScenario) {
  ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm(ReleaseRuleType::knnRegression)
      .configure(elementId, priorityScenario, ruleScenario);
}

void ConfigureRuleElementFromPriorityFactory::makeRegressionTreeColVolumes(
    unsigned int elementId, const PriorityScenario& priorityScenario, RuleScenario& ruleScenario) {
  ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm(
      ReleaseRuleType::regressionTree)
      .configure(elementId, priorityScenario, ruleScenario);
}

void ConfigureRuleElementFromPriorityFactory::makeRegressionRandomForestColVolumes(
    unsigned int elementId, const PriorityScenario& priorityScenario, RuleScenario& ruleScenario) {
  ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm(ReleaseRuleType::randomForest)
      .configure(elementId, priorityScenario, ruleScenario);
}
