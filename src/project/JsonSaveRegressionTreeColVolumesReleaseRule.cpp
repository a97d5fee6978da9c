#include "project/JsonSaveRegressionTreeColVolumesReleaseRule.h"

#include "rules/RegressionTreeColVolumesReleaseRule.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSaveRegressionTreeColVolumesReleaseRule::toJsonSpecific() const {
  const auto& rule = getRule<RegressionTreeColVolumesReleaseRule>();
  return {B::makeJsonKeyValue("maxNumberOfLeaves", rule.getMaxNumberOfLeaves()),
          B::makeJsonKeyValue("maxDepth", rule.getMaxDepth()),
          B::makeJsonKeyValue("cp", rule.getCp())};
}
