#include "project/JsonSaveKNNRegressionColVolumesReleaseRule.h"

#include "rules/KNNRegressionColVolumesReleaseRule.h"

JsonSaveBuilder::Members JsonSaveKNNRegressionColVolumesReleaseRule::toJsonSpecific() const {
  return {JsonSaveBuilder::makeJsonKeyValue(
      "normalize", getRule<KNNRegressionColVolumesReleaseRule>().isNormalize())};
}
