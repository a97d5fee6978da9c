#pragma once

#include "scenario/ConfigureRuleElementFromPriorityAddon.h"

// Nearest-neighbour models, on volumes as they stand or each divided by its largest value.
class ConfigureRuleElementFromPriorityKNNAddon : public ConfigureRuleElementFromPriorityAddon {
 public:
  ConfigureRuleElementFromPriorityKNNAddon()
      : ConfigureRuleElementFromPriorityAddon(ConfigureRuleElementType::knn) {}

  [[nodiscard]] std::shared_ptr<ConfigureRuleElementFromPriorityAddon> copy() const override {
    return std::make_shared<ConfigureRuleElementFromPriorityKNNAddon>(*this);
  }

  bool isNormalize() const { return normalize; }
  void setNormalize(bool value) { normalize = value; }

 private:
  bool normalize = false;
};
