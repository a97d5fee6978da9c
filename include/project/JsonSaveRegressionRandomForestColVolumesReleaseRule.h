#pragma once

#include "project/JsonSaveMachineLearningRegressionColVolumesReleaseRule.h"

// The forest rule's keys: "numberOfTrees", "replacement", "numberOfAttributesInTree",
// "datasetPercentInTree", "maxNumberOfLeaves", "maxDepth", "cp", and "vectorOfTreeInfo", the rows
// and attributes of each tree: [{"datasetIndexes":[..],"attributesIndexes":[..]},...].
class JsonSaveRegressionRandomForestColVolumesReleaseRule
    : public JsonSaveMachineLearningRegressionColVolumesReleaseRule {
 public:
  using JsonSaveMachineLearningRegressionColVolumesReleaseRule::
      JsonSaveMachineLearningRegressionColVolumesReleaseRule;

 protected:
  JsonSaveBuilder::Members toJsonSpecific() const override;
};
