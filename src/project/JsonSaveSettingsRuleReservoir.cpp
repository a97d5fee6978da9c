#include "project/JsonSaveSettingsRuleReservoir.h"

#include "core/ReservoirRuleSettings.h"
#include "project/JsonSaveBuilder.h"
#include "project/JsonSaveReleaseRuleFactory.h"
#include "project/JsonSaveSettingsRule.h"

using B = JsonSaveBuilder;

std::string JsonSaveSettingsRuleReservoir::toJson() const {
  const auto settings = getSettings<ReservoirRuleSettings>();
  B::Members members = {
      B::makeJsonKeyValue("SettingsRule", JsonSaveSettingsRule::toJsonRuleSettings(*settings))};
  if (const auto& rule = settings->getRule()) {
    members.push_back(B::makeJsonKeyValueString("ReleaseRuleType", rule->getType().getName()));
    members.push_back(
        B::makeJsonKeyValue("ReleaseRule", JsonSaveReleaseRuleFactory::make(rule)->toJson()));
  }
  return B::makeObject(members);
}
