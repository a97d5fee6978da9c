#include "project/JsonSaveSettings.h"

#include "core/LinkRuleSettings.h"
#include "core/PriorityPassiveSettings.h"
#include "project/JsonSaveBuilder.h"

using B = JsonSaveBuilder;

JsonSaveSettings::JsonSaveSettings(std::shared_ptr<Element> element,
                                   std::shared_ptr<Scenario> scenario)
    : element(std::move(element)), scenario(std::move(scenario)) {}

std::string JsonSaveSettingsRuleLink::toJson() const {
  const auto& values = getSettings<LinkRuleSettings>()->getValues();
  return B::makeObject(
      {B::makeJsonKeyValue("bidirectionalAllocation", B::makeVectorOfFloatingValues(values))});
}

// The settings are looked up all the same, so that an element whose scenario holds settings of
// another kind is refused rather than written as if it had none.
std::string JsonSaveSettingsPriorityPassive::toJson() const {
  getSettings<PriorityPassiveSettings>();
  return B::makeObject({});
}
