#pragma once

#include <memory>

#include "scenario/ConfigureRuleElementFromPriorityAddon.h"

// The settings of a conversion of each kind, with their defaults.
class ConfigureRuleElementFromPriorityAddonFactory {
 public:
  // Throws std::invalid_argument "ConfigureRuleElementFromPriorityAddonFactory::make(): invalid
  // type" for a kind without settings.
  static std::shared_ptr<ConfigureRuleElementFromPriorityAddon> make(ConfigureRuleElementType type);

  static std::shared_ptr<ConfigureRuleElementFromPriorityAddon> makeDefaultAddon();
  static std::shared_ptr<ConfigureRuleElementFromPriorityAddon> makeKNNAddon();
  static std::shared_ptr<ConfigureRuleElementFromPriorityAddon> makeRegressionTreeAddon();
  static std::shared_ptr<ConfigureRuleElementFromPriorityAddon> makeRegressionRandomForest();
};
