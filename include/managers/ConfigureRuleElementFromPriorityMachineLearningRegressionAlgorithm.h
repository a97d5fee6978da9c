#pragma once

#include <memory>

#include "managers/ConfigureRuleElementFromPriority.h"
#include "vocabulary/EnumTypes.h"

class MachineLearningRegressionColVolumesReleaseRule;

// Gives a reservoir a learned rule of one kind, trained on the run: one entry per period, the
// volumes with which the period began of the reservoirs of its system (the addon's) against the
// reservoir's release of the period; the model's settings are the addon's.
class ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm
    : public ConfigureRuleElementFromPriority {
 public:
  // ruleType is one of the three learned rules.
  explicit ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm(
      ReleaseRuleType ruleType);

  // Trains rule on the run for reservoirId: its system, its entries and the addon's settings.
  static void configureMachineLearningRegressionColVolumesReleaseRule(
      unsigned int reservoirId, const PriorityScenario& priorityScenario,
      MachineLearningRegressionColVolumesReleaseRule& rule);

 protected:
  void configureReservoir(unsigned int reservoirId, const PriorityScenario& priorityScenario,
                          RuleScenario& ruleScenario) const override;

 private:
  ReleaseRuleType ruleType;
};
