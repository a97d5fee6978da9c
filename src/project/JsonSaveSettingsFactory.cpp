#include "project/JsonSaveSettingsFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveSettingsPriorityDemand.h"
#include "project/JsonSaveSettingsPriorityReservoir.h"
#include "project/JsonSaveSettingsRule.h"
#include "project/JsonSaveSettingsRuleReservoir.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Key = std::pair<std::string, std::string>;
using Maker = std::function<std::shared_ptr<JsonSaveSettings>(const std::shared_ptr<Element>&,
                                                              const std::shared_ptr<Scenario>&)>;

template <typename Writer>
std::shared_ptr<JsonSaveSettings> makeWriter(const std::shared_ptr<Element>& element,
                                             const std::shared_ptr<Scenario>& scenario) {
  return std::make_shared<Writer>(element, scenario);
}

Key keyOf(ScenarioType scenario, ElementType element) {
  return {Vocabulary::of(scenario).getName(), Vocabulary::of(element).getName()};
}

const JsonMakerTable<Maker, Key>& makers() {
  using E = ElementType;
  const ScenarioType rules = ScenarioType::ruleSimulator;
  const ScenarioType priorities = ScenarioType::priorityOptimizer;
  static const JsonMakerTable<Maker, Key> table(
      {
          {keyOf(rules, E::reservoir), makeWriter<JsonSaveSettingsRuleReservoir>},
          {keyOf(rules, E::junction), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::basin), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::humanDemand), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::animalDemand), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::industrialDemand), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::irrigationDemand), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::drain), makeWriter<JsonSaveSettingsRule>},
          {keyOf(rules, E::naturalLink), makeWriter<JsonSaveSettingsRuleLink>},
          {keyOf(rules, E::artificialLink), makeWriter<JsonSaveSettingsRuleLink>},
          {keyOf(priorities, E::reservoir), makeWriter<JsonSaveSettingsPriorityReservoir>},
          {keyOf(priorities, E::junction), makeWriter<JsonSaveSettingsPriorityPassive>},
          {keyOf(priorities, E::basin), makeWriter<JsonSaveSettingsPriorityPassive>},
          {keyOf(priorities, E::humanDemand), makeWriter<JsonSaveSettingsPriorityDemand>},
          {keyOf(priorities, E::animalDemand), makeWriter<JsonSaveSettingsPriorityDemand>},
          {keyOf(priorities, E::industrialDemand), makeWriter<JsonSaveSettingsPriorityDemand>},
          {keyOf(priorities, E::irrigationDemand), makeWriter<JsonSaveSettingsPriorityDemand>},
          {keyOf(priorities, E::drain), makeWriter<JsonSaveSettingsPriorityDemand>},
          {keyOf(priorities, E::naturalLink), makeWriter<JsonSaveSettingsPriorityPassive>},
          {keyOf(priorities, E::artificialLink), makeWriter<JsonSaveSettingsPriorityPassive>},
      },
      "JsonSaveSettingsFactory::make(): invalid parameter key");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveSettings> JsonSaveSettingsFactory::make(
    const std::shared_ptr<Element>& element, const std::shared_ptr<Scenario>& scenario) {
  const Key key = {scenario->getScenarioType().getName(), element->getElementType().getName()};
  return makers().at(key)(element, scenario);
}

std::vector<std::pair<std::string, std::string>> JsonSaveSettingsFactory::keys() {
  return makers().keys();
}
