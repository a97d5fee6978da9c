#include "project/JsonLoadRegressionRandomForestColVolumesReleaseRule.h"

#include "project/JsonLoadHelper.h"
#include "rules/RegressionRandomForestColVolumesReleaseRule.h"

using Helper = JsonLoadHelper;

void JsonLoadRegressionRandomForestColVolumesReleaseRule::loadSpecific(
    const nlohmann::json& object) const {
  auto& rule = getRule<RegressionRandomForestColVolumesReleaseRule>();
  rule.setNumberOfTrees(Helper::getRequired<uint32_t>(object, "numberOfTrees"));
  rule.setReplacement(Helper::getRequired<bool>(object, "replacement"));
  rule.setNumberOfAttributesInTree(
      Helper::getRequired<uint32_t>(object, "numberOfAttributesInTree"));
  rule.setDatasetPercentInTree(Helper::getRequired<double>(object, "datasetPercentInTree"));
  rule.setMaxNumberOfLeaves(Helper::getRequired<uint32_t>(object, "maxNumberOfLeaves"));
  rule.setMaxDepth(Helper::getRequired<uint32_t>(object, "maxDepth"));
  rule.setCp(Helper::getRequired<double>(object, "cp"));
  std::vector<RegressionRandomForestColVolumesReleaseRule::TreeInfo> trees;
  for (const auto& item : Helper::asArray(Helper::findRequired(object, "vectorOfTreeInfo"))) {
    trees.push_back({Helper::getRequired<std::vector<uint32_t>>(item, "datasetIndexes"),
                     Helper::getRequired<std::vector<uint32_t>>(item, "attributesIndexes")});
  }
  rule.setVecOfTreeInfo(trees);
}
