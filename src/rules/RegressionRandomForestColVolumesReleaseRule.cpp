#include "rules/RegressionRandomForestColVolumesReleaseRule.h"

#include "machinelearning/TreeConverter.h"
#include "vocabulary/Vocabulary.h"

RegressionRandomForestColVolumesReleaseRule::RegressionRandomForestColVolumesReleaseRule()
    : MachineLearningRegressionColVolumesReleaseRule(
          makeBlankAlgorithm<RegressionRandomForestAlgorithm>()) {}

Enum<ReleaseRuleType> RegressionRandomForestColVolumesReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::randomForest);
}

void RegressionRandomForestColVolumesReleaseRule::buildAlgorithm() {
  if (getVecOfTreeInfo().empty()) forest().buildTreesInfo();
  MachineLearningRegressionColVolumesReleaseRule::buildAlgorithm();
}

std::vector<BinaryTree<std::string>> RegressionRandomForestColVolumesReleaseRule::getBinaryTrees()
    const {
  std::vector<BinaryTree<std::string>> trees;
  for (const auto& tree : forest().getVectorOfRegressionTree()) {
    trees.push_back(TreeConverter::regressionTreeToBinaryTree(*tree));
  }
  return trees;
}

std::shared_ptr<MachineLearningRegressionAlgorithm>
RegressionRandomForestColVolumesReleaseRule::makeAlgorithmInstance(
    uint32_t numberOfAttributes, const std::vector<std::string>& names) const {
  auto algorithm = makeLikePresent<RegressionRandomForestAlgorithm>(numberOfAttributes, names);
  algorithm->setNumberOfTrees(getNumberOfTrees());
  algorithm->setReplacement(isReplacement());
  algorithm->setNumberOfAttributesInTree(getNumberOfAttributesInTree());
  algorithm->setDatasetPercentInTree(getDatasetPercentInTree());
  algorithm->setMaxNumberOfLeaves(getMaxNumberOfLeaves());
  algorithm->setMaxDepth(getMaxDepth());
  algorithm->setCp(getCp());
  return algorithm;
}
