#include "project/JsonSaveSettingsFactory.h"

#include <functional>
#include <map>

#include "project/JsonMakerTable.h"
#include "project/JsonSaveSettingsGuaranteeCurveReservoir.h"
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

// Every kind run by release rules reads and writes its elements' settings alike, but for the
// mark of the reservoirs of a guarantee curve.
std::map<Key, Maker> rows() {
  using E = ElementType;
  std::map<Key, Maker> rows;
  for (ScenarioType rules : {ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
                             ScenarioType::guaranteeCurve, ScenarioType::systemGuaranteeCurve}) {
    const bool curve = rules == ScenarioType::guaranteeCurve;
    rows.emplace(keyOf(rules, E::reservoir),
                 curve ? makeWriter<JsonSaveSettingsGuaranteeCurveReservoir>
                       : makeWriter<JsonSaveSettingsRuleReservoir>);
    rows.emplace(keyOf(rules, E::junction), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::basin), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::humanDemand), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::animalDemand), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::industrialDemand), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::irrigationDemand), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::drain), makeWriter<JsonSaveSettingsRule>);
    rows.emplace(keyOf(rules, E::naturalLink), makeWriter<JsonSaveSettingsRuleLink>);
    rows.emplace(keyOf(rules, E::artificialLink), makeWriter<JsonSaveSettingsRuleLink>);
  }
  const ScenarioType priorities = ScenarioType::priorityOptimizer;
  rows.emplace(keyOf(priorities, E::reservoir), makeWriter<JsonSaveSettingsPriorityReservoir>);
  rows.emplace(keyOf(priorities, E::junction), makeWriter<JsonSaveSettingsPriorityPassive>);
  rows.emplace(keyOf(priorities, E::basin), makeWriter<JsonSaveSettingsPriorityPassive>);
  rows.emplace(keyOf(priorities, E::humanDemand), makeWriter<JsonSaveSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::animalDemand), makeWriter<JsonSaveSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::industrialDemand), makeWriter<JsonSaveSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::irrigationDemand), makeWriter<JsonSaveSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::drain), makeWriter<JsonSaveSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::naturalLink), makeWriter<JsonSaveSettingsPriorityPassive>);
  rows.emplace(keyOf(priorities, E::artificialLink), makeWriter<JsonSaveSettingsPriorityPassive>);
  return rows;
}

const JsonMakerTable<Maker, Key>& makers() {
  static const JsonMakerTable<Maker, Key> table(
      rows(), "JsonSaveSettingsFactory::make(): invalid parameter key");
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
