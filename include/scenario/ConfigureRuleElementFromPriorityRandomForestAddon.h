#pragma once

#include "scenario/ConfigureRuleElementFromPriorityAddon.h"
#include "scenario/TreeLimits.h"

// Random-forest models: how many trees, and how many attributes and what share of the rows (drawn
// with or without replacement) each tree sees.
class ConfigureRuleElementFromPriorityRandomForestAddon
    : public ConfigureRuleElementFromPriorityAddon {
 public:
  ConfigureRuleElementFromPriorityRandomForestAddon()
      : ConfigureRuleElementFromPriorityAddon(ConfigureRuleElementType::randomForest) {}

  [[nodiscard]] std::shared_ptr<ConfigureRuleElementFromPriorityAddon> copy() const override {
    return std::make_shared<ConfigureRuleElementFromPriorityRandomForestAddon>(*this);
  }

  unsigned int getNumberOfTrees() const { return numberOfTrees; }
  void setNumberOfTrees(unsigned int value) { numberOfTrees = value; }
  unsigned int getNumberOfAttributesInTree() const { return numberOfAttributesInTree; }
  void setNumberOfAttributesInTree(unsigned int value) { numberOfAttributesInTree = value; }
  double getDatasetPercentInTree() const { return datasetPercentInTree; }
  void setDatasetPercentInTree(double value) { datasetPercentInTree = value; }
  bool isReplacement() const { return replacement; }
  void setReplacement(bool value) { replacement = value; }
  const TreeLimits& getTreeLimits() const { return limits; }
  void setTreeLimits(const TreeLimits& value) { limits = value; }

 private:
  unsigned int numberOfTrees = 100;
  unsigned int numberOfAttributesInTree = 1;
  double datasetPercentInTree = 100.0;
  bool replacement = true;
  TreeLimits limits;
};
