#include "project/JsonLoadSettingsFactory.h"

#include <functional>
#include <map>

#include "project/JsonLoadSettingsGuaranteeCurveReservoir.h"
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

// Every kind run by release rules reads and writes its elements' settings alike, but for the
// mark of the reservoirs of a guarantee curve.
std::map<Key, Maker> rows() {
  using E = ElementType;
  std::map<Key, Maker> rows;
  for (ScenarioType rules : {ScenarioType::ruleSimulator, ScenarioType::ruleOptimizer,
                             ScenarioType::guaranteeCurve, ScenarioType::systemGuaranteeCurve}) {
    const bool curve = rules == ScenarioType::guaranteeCurve;
    rows.emplace(keyOf(rules, E::reservoir),
                 curve ? makeReader<JsonLoadSettingsGuaranteeCurveReservoir>
                       : makeReader<JsonLoadSettingsRuleReservoir>);
    rows.emplace(keyOf(rules, E::junction), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::basin), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::humanDemand), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::animalDemand), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::industrialDemand), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::irrigationDemand), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::drain), makeReader<JsonLoadSettingsRule>);
    rows.emplace(keyOf(rules, E::naturalLink), makeReader<JsonLoadSettingsRuleLink>);
    rows.emplace(keyOf(rules, E::artificialLink), makeReader<JsonLoadSettingsRuleLink>);
  }
  const ScenarioType priorities = ScenarioType::priorityOptimizer;
  rows.emplace(keyOf(priorities, E::reservoir), makeReader<JsonLoadSettingsPriorityReservoir>);
  rows.emplace(keyOf(priorities, E::junction), makeReader<JsonLoadSettingsPriorityPassive>);
  rows.emplace(keyOf(priorities, E::basin), makeReader<JsonLoadSettingsPriorityPassive>);
  rows.emplace(keyOf(priorities, E::humanDemand), makeReader<JsonLoadSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::animalDemand), makeReader<JsonLoadSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::industrialDemand), makeReader<JsonLoadSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::irrigationDemand), makeReader<JsonLoadSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::drain), makeReader<JsonLoadSettingsPriorityDemand>);
  rows.emplace(keyOf(priorities, E::naturalLink), makeReader<JsonLoadSettingsPriorityPassive>);
  rows.emplace(keyOf(priorities, E::artificialLink), makeReader<JsonLoadSettingsPriorityPassive>);
  return rows;
}

const JsonMakerTable<Maker, Key>& makers() {
  static const JsonMakerTable<Maker, Key> table(
      rows(), "JsonSaveSettingsFactory::make(): invalid parameter key");
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
