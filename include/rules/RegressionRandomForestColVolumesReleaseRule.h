#pragma once

#include <memory>
#include <string>
#include <vector>

#include "machinelearning/BinaryTree.h"
#include "machinelearning/RegressionRandomForestAlgorithm.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

// The mean release of the trees of a random forest grown on the training run. The rows and
// attributes each tree sees are drawn once and kept, so that a stored rule grows the same forest.
class RegressionRandomForestColVolumesReleaseRule
    : public MachineLearningRegressionColVolumesReleaseRule {
 public:
  using TreeInfo = RegressionRandomForestAlgorithm::TreeInfo;

  RegressionRandomForestColVolumesReleaseRule();

  Enum<ReleaseRuleType> getType() const override;
  // Draws the rows and attributes of the trees when none are kept, then grows them.
  void buildAlgorithm() override;

  uint32_t getNumberOfTrees() const { return forest().getNumberOfTrees(); }
  void setNumberOfTrees(uint32_t value) { forest().setNumberOfTrees(value); }
  bool isReplacement() const { return forest().isReplacement(); }
  void setReplacement(bool value) { forest().setReplacement(value); }
  uint32_t getNumberOfAttributesInTree() const { return forest().getNumberOfAttributesInTree(); }
  void setNumberOfAttributesInTree(uint32_t value) { forest().setNumberOfAttributesInTree(value); }
  double getDatasetPercentInTree() const { return forest().getDatasetPercentInTree(); }
  void setDatasetPercentInTree(double value) { forest().setDatasetPercentInTree(value); }
  const std::vector<TreeInfo>& getVecOfTreeInfo() const { return forest().getVecOfTreeInfo(); }
  void setVecOfTreeInfo(const std::vector<TreeInfo>& value) { forest().setVecOfTreeInfo(value); }
  uint32_t getMaxNumberOfLeaves() const { return forest().getMaxNumberOfLeaves(); }
  void setMaxNumberOfLeaves(uint32_t value) { forest().setMaxNumberOfLeaves(value); }
  uint32_t getMaxDepth() const { return forest().getMaxDepth(); }
  void setMaxDepth(uint32_t value) { forest().setMaxDepth(value); }
  double getCp() const { return forest().getCp(); }
  void setCp(double value) { forest().setCp(value); }
  // Each tree as text nodes, for display.
  std::vector<BinaryTree<std::string>> getBinaryTrees() const;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<RegressionRandomForestColVolumesReleaseRule>();
  }
  std::shared_ptr<MachineLearningRegressionAlgorithm> makeAlgorithmInstance(
      uint32_t numberOfAttributes, const std::vector<std::string>& names) const override;

 private:
  RegressionRandomForestAlgorithm& forest() const {
    return algorithmAs<RegressionRandomForestAlgorithm>();
  }
};
