#include "project/JsonSaveRegressionRandomForestColVolumesReleaseRule.h"

#include "rules/RegressionRandomForestColVolumesReleaseRule.h"

using B = JsonSaveBuilder;

JsonSaveBuilder::Members JsonSaveRegressionRandomForestColVolumesReleaseRule::toJsonSpecific()
    const {
  const auto& rule = getRule<RegressionRandomForestColVolumesReleaseRule>();
  const auto treeInfo = [](const RegressionRandomForestColVolumesReleaseRule::TreeInfo& info) {
    return B::makeObject(
        {B::makeJsonKeyValue("datasetIndexes", B::makeVectorOfIntegerValues(info.rows)),
         B::makeJsonKeyValue("attributesIndexes", B::makeVectorOfIntegerValues(info.attributes))});
  };
  return {B::makeJsonKeyValue("numberOfTrees", rule.getNumberOfTrees()),
          B::makeJsonKeyValue("replacement", rule.isReplacement()),
          B::makeJsonKeyValue("numberOfAttributesInTree", rule.getNumberOfAttributesInTree()),
          B::makeJsonKeyValue("datasetPercentInTree", rule.getDatasetPercentInTree()),
          B::makeJsonKeyValue("maxNumberOfLeaves", rule.getMaxNumberOfLeaves()),
          B::makeJsonKeyValue("maxDepth", rule.getMaxDepth()),
          B::makeJsonKeyValue("cp", rule.getCp()),
          B::makeJsonKeyValue("vectorOfTreeInfo", B::makeArray(rule.getVecOfTreeInfo(), treeInfo))};
}
