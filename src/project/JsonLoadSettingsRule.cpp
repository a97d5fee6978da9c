#include "project/JsonLoadSettingsRule.h"

#include <vector>

#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

void JsonLoadSettingsRule::load(const json& object) const {
  loadRuleSettings(object, *getSettings<RuleSettings>());
}

void JsonLoadSettingsRule::loadRuleSettings(const json& object, RuleSettings& settings) {
  const auto elementId = Helper::getRequired<unsigned int>(object, "elementID");
  RuleSettings::AllocationMatrix allocation;
  for (const json& row : Helper::asArray(Helper::findRequired(object, "AllocationMatrix"))) {
    allocation[Helper::getRequired<unsigned int>(row, "ID")] =
        Helper::getRequired<std::vector<double>>(row, "Values");
  }
  settings.setElementId(elementId);
  settings.setAllocation(allocation);
}
