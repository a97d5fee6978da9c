#include "project/JsonLoadKNNRegressionColVolumesReleaseRule.h"

#include "project/JsonLoadHelper.h"
#include "rules/KNNRegressionColVolumesReleaseRule.h"

void JsonLoadKNNRegressionColVolumesReleaseRule::loadSpecific(const nlohmann::json& object) const {
  getRule<KNNRegressionColVolumesReleaseRule>().setNormalize(
      JsonLoadHelper::getRequired<bool>(object, "normalize"));
}
