#include "project/JsonLoadSettingsRuleReservoir.h"

#include <string>

#include "core/ReservoirRuleSettings.h"
#include "project/JsonLoadHelper.h"
#include "project/JsonLoadReleaseRuleFactory.h"
#include "project/JsonLoadSettingsRule.h"
#include "rules/ReleaseRuleFactory.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

void JsonLoadSettingsRuleReservoir::load(const json& object) const {
  const auto settings = getSettings<ReservoirRuleSettings>();
  JsonLoadSettingsRule::loadRuleSettings(Helper::findRequired(object, "SettingsRule"), *settings);
  bool found = false;
  const auto type = Helper::findOptional<std::string>(found, object, "ReleaseRuleType");
  if (!found) return;
  const std::shared_ptr<ReleaseRule> rule = ReleaseRuleFactory::make(type);
  JsonLoadReleaseRuleFactory::make(type, rule, getScenario())
      ->load(Helper::findRequired(object, "ReleaseRule"));
  settings->setRule(rule);
}
