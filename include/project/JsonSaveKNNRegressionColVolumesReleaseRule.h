#pragma once

#include "project/JsonSaveMachineLearningRegressionColVolumesReleaseRule.h"

// The nearest-neighbour rule's key: "normalize".
class JsonSaveKNNRegressionColVolumesReleaseRule
    : public JsonSaveMachineLearningRegressionColVolumesReleaseRule {
 public:
  using JsonSaveMachineLearningRegressionColVolumesReleaseRule::
      JsonSaveMachineLearningRegressionColVolumesReleaseRule;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
