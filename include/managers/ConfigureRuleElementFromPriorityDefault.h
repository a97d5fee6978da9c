#pragma once

#include "managers/ConfigureRuleElementFromPriority.h"

// Gives a reservoir the releases of the run as a series.
class ConfigureRuleElementFromPriorityDefault : public ConfigureRuleElementFromPriority {
 public:
  ConfigureRuleElementFromPriorityDefault()
      : ConfigureRuleElementFromPriority("ConfigureRuleElementFromPriorityDefault") {}

  static void configureSerieReleaseRule(unsigned int reservoirId,
                                        const PriorityScenario& priorityScenario,
                                        RuleScenario& ruleScenario);

 protected:
  void configureReservoir(unsigned int reservoirId, const PriorityScenario& priorityScenario,
                          RuleScenario& ruleScenario) const override {
    configureSerieReleaseRule(reservoirId, priorityScenario, ruleScenario);
  }
};
