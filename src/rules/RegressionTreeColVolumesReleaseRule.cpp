#include "rules/RegressionTreeColVolumesReleaseRule.h"

#include "machinelearning/TreeConverter.h"
#include "vocabulary/Vocabulary.h"

RegressionTreeColVolumesReleaseRule::RegressionTreeColVolumesReleaseRule()
    : MachineLearningRegressionColVolumesReleaseRule(
          makeBlankAlgorithm<RegressionTreeAlgorithm>()) {}

Enum<ReleaseRuleType> RegressionTreeColVolumesReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::regressionTree);
}

BinaryTree<std::string> RegressionTreeColVolumesReleaseRule::getBinaryTree() const {
  return TreeConverter::regressionTreeToBinaryTree(tree());
}

std::shared_ptr<MachineLearningRegressionAlgorithm>
RegressionTreeColVolumesReleaseRule::makeAlgorithmInstance(
    uint32_t numberOfAttributes, const std::vector<std::string>& names) const {
  auto algorithm = makeLikePresent<RegressionTreeAlgorithm>(numberOfAttributes, names);
  algorithm->setMaxNumberOfLeaves(getMaxNumberOfLeaves());
  algorithm->setMaxDepth(getMaxDepth());
  algorithm->setCp(getCp());
  return algorithm;
}
