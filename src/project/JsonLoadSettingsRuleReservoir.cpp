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
  const json& ruleObject = Helper::findRequired(object, "ReleaseRule");
  const auto reader = JsonLoadReleaseRuleFactory::make(type, rule, getScenario());
  Helper::at(ruleObject, [&] { reader->load(ruleObject); });
  settings->setRule(rule);
}
