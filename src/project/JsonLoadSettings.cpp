#include "project/JsonLoadSettings.h"

#include <vector>

#include "core/LinkRuleSettings.h"
#include "core/PriorityPassiveSettings.h"
#include "project/JsonLoadHelper.h"

JsonLoadSettings::JsonLoadSettings(std::shared_ptr<Element> element,
                                   std::shared_ptr<Scenario> scenario)
    : element(std::move(element)), scenario(std::move(scenario)) {}

void JsonLoadSettingsRuleLink::load(const nlohmann::json& object) const {
  const auto settings = getSettings<LinkRuleSettings>();
  JsonLoadHelper::applyOptional<std::vector<double>>(
      object, "bidirectionalAllocation",
      [&](const std::vector<double>& values) { settings->setValues(values); });
}

// Nothing is read, but the settings are looked up all the same, so that an element whose scenario
// holds settings of another kind is refused.
void JsonLoadSettingsPriorityPassive::load(const nlohmann::json&) const {
  getSettings<PriorityPassiveSettings>();
}
