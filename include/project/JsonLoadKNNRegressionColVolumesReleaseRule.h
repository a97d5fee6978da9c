#pragma once

#include "project/JsonLoadMachineLearningRegressionColVolumesReleaseRule.h"

// Reads the nearest-neighbour rule's "normalize".
class JsonLoadKNNRegressionColVolumesReleaseRule
    : public JsonLoadMachineLearningRegressionColVolumesReleaseRule {
 public:
  using JsonLoadMachineLearningRegressionColVolumesReleaseRule::
      JsonLoadMachineLearningRegressionColVolumesReleaseRule;

 protected:
  void loadSpecific(const nlohmann::json& object) const override;
};
