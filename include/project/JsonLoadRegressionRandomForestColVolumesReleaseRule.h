#pragma once

#include "project/JsonLoadMachineLearningRegressionColVolumesReleaseRule.h"

// Reads the forest rule's settings and the rows and attributes of its trees, so that it grows the
// same forest again.
class JsonLoadRegressionRandomForestColVolumesReleaseRule
    : public JsonLoadMachineLearningRegressionColVolumesReleaseRule {
 public:
  using JsonLoadMachineLearningRegressionColVolumesReleaseRule::
      JsonLoadMachineLearningRegressionColVolumesReleaseRule;

 protected:
  void loadSpecific(const nlohmann::json& object) const override;
};
