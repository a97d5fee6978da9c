#include "rules/KNNRegressionColVolumesReleaseRule.h"

#include "vocabulary/Vocabulary.h"

KNNRegressionColVolumesReleaseRule::KNNRegressionColVolumesReleaseRule()
    : MachineLearningRegressionColVolumesReleaseRule(makeBlankAlgorithm<KNNRegressionAlgorithm>()) {
}

Enum<ReleaseRuleType> KNNRegressionColVolumesReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::knnRegression);
}

std::shared_ptr<MachineLearningRegressionAlgorithm>
KNNRegressionColVolumesReleaseRule::makeAlgorithmInstance(
    uint32_t numberOfAttributes, const std::vector<std::string>& names) const {
  auto algorithm = makeLikePresent<KNNRegressionAlgorithm>(numberOfAttributes, names);
  algorithm->setNormalize(isNormalize());
  return algorithm;
}
