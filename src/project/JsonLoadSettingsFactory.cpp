#include "project/JsonLoadSettingsFactory.h"

#include <functional>

#include "project/JsonLoadSettingsPriorityDemand.h"
#include "project/JsonLoadSettingsPriorityReservoir.h"
#include "project/JsonLoadSettingsRule.h"
#include "project/JsonLoadSettingsRuleReservoir.h"
#include "project/JsonMakerTable.h"
#include "vocabulary/Vocabulary.h"

namespace {

using Key = std::pair<std::string, std::string>;
using Maker = std::function<std::shared_ptr<JsonLoadSettings>(const std::shared_ptr<Element>&,
                                                              const std::shared_ptr<Scenario>&)>;

template <typename Reader>
std::shared_ptr<JsonLoadSettings> makeReader(const std::shared_ptr<Element>& element,
                                             const std::shared_ptr<Scenario>& scenario) {
  return std::make_shared<Reader>(element, scenario);
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
          {keyOf(rules, E::reservoir), makeReader<JsonLoadSettingsRuleReservoir>},
          {keyOf(rules, E::junction), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::basin), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::humanDemand), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::animalDemand), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::industrialDemand), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::irrigationDemand), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::drain), makeReader<JsonLoadSettingsRule>},
          {keyOf(rules, E::naturalLink), makeReader<JsonLoadSettingsRuleLink>},
          {keyOf(rules, E::artificialLink), makeReader<JsonLoadSettingsRuleLink>},
          {keyOf(priorities, E::reservoir), makeReader<JsonLoadSettingsPriorityReservoir>},
          {keyOf(priorities, E::junction), makeReader<JsonLoadSettingsPriorityPassive>},
          {keyOf(priorities, E::basin), makeReader<JsonLoadSettingsPriorityPassive>},
          {keyOf(priorities, E::humanDemand), makeReader<JsonLoadSettingsPriorityDemand>},
          {keyOf(priorities, E::animalDemand), makeReader<JsonLoadSettingsPriorityDemand>},
          {keyOf(priorities, E::industrialDemand), makeReader<JsonLoadSettingsPriorityDemand>},
          {keyOf(priorities, E::irrigationDemand), makeReader<JsonLoadSettingsPriorityDemand>},
          {keyOf(priorities, E::drain), makeReader<JsonLoadSettingsPriorityDemand>},
          {keyOf(priorities, E::naturalLink), makeReader<JsonLoadSettingsPriorityPassive>},
          {keyOf(priorities, E::artificialLink), makeReader<JsonLoadSettingsPriorityPassive>},
      },
      "JsonSaveSettingsFactory::make(): invalid parameter key");
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadSettings> JsonLoadSettingsFactory::make(
    const std::shared_ptr<Element>& element, const std::shared_ptr<Scenario>& scenario) {
  const Key key = {scenario->getScenarioType().getName(), element->getElementType().getName()};
  return makers().at(key)(element, scenario);
}

std::vector<std::pair<std::string, std::string>> JsonLoadSettingsFactory::keys() {
  return makers().keys();
}
