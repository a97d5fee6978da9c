#pragma once

#include "project/JsonLoadMachineLearningRegressionColVolumesReleaseRule.h"

// Reads the tree rule's "maxNumberOfLeaves", "maxDepth" and "cp".
class JsonLoadRegressionTreeColVolumesReleaseRule
    : public JsonLoadMachineLearningRegressionColVolumesReleaseRule {
 public:
  using JsonLoadMachineLearningRegressionColVolumesReleaseRule::
      JsonLoadMachineLearningRegressionColVolumesReleaseRule;

 protected:
  void loadSpecific(const nlohmann::json& object) const override;
};
