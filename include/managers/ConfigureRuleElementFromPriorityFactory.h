#pragma once

#include "vocabulary/MachineLearningVocabulary.h"

class PriorityScenario;
class RuleScenario;

// Configures one element of a scenario by rules from a run by priorities, by the kind of rule its
// reservoirs get.
class ConfigureRuleElementFromPriorityFactory {
 public:
  // Throws std::invalid_argument "ConfigureRuleElementFromPriorityFactory::make(): invalid type"
  // for a kind without a configurator.
  static void make(ConfigureRuleElementType type, unsigned int elementId,
                   const PriorityScenario& priorityScenario, RuleScenario& ruleScenario);

  static void makeDefault(unsigned int elementId, const PriorityScenario& priorityScenario,
                          RuleScenario& ruleScenario);
  static void makeKNNColVolumes(unsigned int elementId, const PriorityScenario& priorityScenario,
                                RuleScenario& ruleScenario);
  static void makeRegressionTreeColVolumes(unsigned int elementId,
                                           const PriorityScenario& priorityScenario,
                                           RuleScenario& ruleScenario);
  static void makeRegressionRandomForestColVolumes(unsigned int elementId,
                                                   const PriorityScenario& priorityScenario,
                                                   RuleScenario& ruleScenario);
};
