#pragma once

#include "scenario/ConfigureRuleElementFromPriorityAddon.h"
#include "scenario/TreeLimits.h"

// Regression-tree models.
class ConfigureRuleElementFromPriorityRegressionTreeAddon
    : public ConfigureRuleElementFromPriorityAddon {
 public:
  ConfigureRuleElementFromPriorityRegressionTreeAddon()
      : ConfigureRuleElementFromPriorityAddon(ConfigureRuleElementType::regressionTree) {}

  [[nodiscard]] std::shared_ptr<ConfigureRuleElementFromPriorityAddon> copy() const override {
    return std::make_shared<ConfigureRuleElementFromPriorityRegressionTreeAddon>(*this);
  }

  const TreeLimits& getTreeLimits() const { return limits; }
  void setTreeLimits(const TreeLimits& value) { limits = value; }

 private:
  TreeLimits limits;
};
