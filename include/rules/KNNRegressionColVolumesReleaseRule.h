#pragma once

#include "machinelearning/KNNRegressionAlgorithm.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

// The release of the nearest periods of the training run, averaged.
class KNNRegressionColVolumesReleaseRule : public MachineLearningRegressionColVolumesReleaseRule {
 public:
  KNNRegressionColVolumesReleaseRule();

  Enum<ReleaseRuleType> getType() const override;

  bool isNormalize() const { return algorithmAs<KNNRegressionAlgorithm>().isNormalize(); }
  void setNormalize(bool value) { algorithmAs<KNNRegressionAlgorithm>().setNormalize(value); }

 protected:
  std::shared_ptr<ReleaseRule> makeBlank() const override {
    return std::make_shared<KNNRegressionColVolumesReleaseRule>();
  }
  std::shared_ptr<MachineLearningRegressionAlgorithm> makeAlgorithmInstance(
      uint32_t numberOfAttributes, const std::vector<std::string>& names) const override;
};
