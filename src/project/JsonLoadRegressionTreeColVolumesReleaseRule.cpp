#include "project/JsonLoadRegressionTreeColVolumesReleaseRule.h"

#include "project/JsonLoadHelper.h"
#include "rules/RegressionTreeColVolumesReleaseRule.h"

using Helper = JsonLoadHelper;

void JsonLoadRegressionTreeColVolumesReleaseRule::loadSpecific(const nlohmann::json& object) const {
  auto& rule = getRule<RegressionTreeColVolumesReleaseRule>();
  rule.setMaxNumberOfLeaves(Helper::getRequired<uint32_t>(object, "maxNumberOfLeaves"));
  rule.setMaxDepth(Helper::getRequired<uint32_t>(object, "maxDepth"));
  rule.setCp(Helper::getRequired<double>(object, "cp"));
}
