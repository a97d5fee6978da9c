#pragma once

#include <memory>
#include <string>

#include "machinelearning/BinaryTree.h"
#include "machinelearning/RegressionTreeAlgorithm.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

// The release of the leaf of a regression tree grown on the training run. The number of entries
// is here the least number of periods of a node that may be split.
class RegressionTreeColVolumesReleaseRule : public MachineLearningRegressionColVolumesReleaseRule {
 public:
  RegressionTreeColVolumesReleaseRule();

  Enum<ReleaseRuleType> getType() const override;

  uint32_t getMaxNumberOfLeaves() const { return tree().getMaxNumberOfLeaves(); }
  void setMaxNumberOfLeaves(uint32_t value) { tree().setMaxNumberOfLeaves(value); }
  uint32_t getMaxDepth() const { return tree().getMaxDepth(); }
  void setMaxDepth(uint32_t value) { tree().setMaxDepth(value); }
  double getCp() const { return tree().getCp(); }
  void setCp(double value) { tree().setCp(value); }
  const RegressionTree& getRegressionTree() const { return tree().getRegressionTree(); }
  // The tree as text nodes, for display.
  BinaryTree<std::string> getBinaryTree() const;

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<RegressionTreeColVolumesReleaseRule>();
  }
  std::shared_ptr<MachineLearningRegressionAlgorithm> makeAlgorithmInstance(
      uint32_t numberOfAttributes, const std::vector<std::string>& names) const override;

 private:
  RegressionTreeAlgorithm& tree() const { return algorithmAs<RegressionTreeAlgorithm>(); }
};
