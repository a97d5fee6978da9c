#pragma once

#include "project/JsonSaveMachineLearningRegressionColVolumesReleaseRule.h"

// The tree rule's keys: "maxNumberOfLeaves", "maxDepth", "cp".
class JsonSaveRegressionTreeColVolumesReleaseRule
    : public JsonSaveMachineLearningRegressionColVolumesReleaseRule {
 public:
  using JsonSaveMachineLearningRegressionColVolumesReleaseRule::
      JsonSaveMachineLearningRegressionColVolumesReleaseRule;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
