#include "project/JsonSaveSettingsRule.h"

#include <utility>
#include <vector>

#include "project/JsonSaveBuilder.h"

using B = JsonSaveBuilder;

std::string JsonSaveSettingsRule::toJson() const {
  return toJsonRuleSettings(*getSettings<RuleSettings>());
}

std::string JsonSaveSettingsRule::toJsonRuleSettings(const RuleSettings& settings) {
  const auto row = [](const std::pair<const unsigned int, std::vector<double>>& entry) {
    return B::makeObject(
        {B::makeJsonKeyValue("ID", entry.first),
         B::makeJsonKeyValue("Values", B::makeVectorOfFloatingValues(entry.second))});
  };
  return B::makeObject(
      {B::makeJsonKeyValue("elementID", settings.getElementId()),
       B::makeJsonKeyValue("AllocationMatrix", B::makeArray(settings.getAllocation(), row))});
}
