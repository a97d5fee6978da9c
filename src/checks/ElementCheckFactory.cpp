#include "checks/ElementCheckFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "checks/DemandCheck.h"
#include "checks/LinkCheck.h"
#include "checks/NodeRuleChecks.h"
#include "checks/ReservoirCheck.h"
#include "core/ElementSets.h"
#include "core/KeySettings.h"
#include "core/Scenario.h"

namespace {

using Maker = std::function<std::shared_ptr<ElementCheck>(const std::shared_ptr<Element>&,
                                                          std::weak_ptr<Scenario>)>;

const std::map<KeySettings, Maker>& makers() {
  static const std::map<KeySettings, Maker> table = [] {
    std::map<KeySettings, Maker> result;
    const ScenarioType rule = ScenarioType::ruleSimulator;
    result[{rule, ElementType::reservoir}] = ElementCheckFactory::makeReservoirCheckRule;
    for (ElementType demand : ElementSets::demands()) {
      result[{rule, demand}] = ElementCheckFactory::makeDemandCheckRule;
    }
    result[{rule, ElementType::basin}] = ElementCheckFactory::makeBasinCheckRule;
    result[{rule, ElementType::junction}] = ElementCheckFactory::makeJunctionCheckRule;
    for (ElementType link : ElementSets::links()) {
      result[{rule, link}] = ElementCheckFactory::makeLinkCheckRule;
    }
    return result;
  }();
  return table;
}

}  // namespace

std::shared_ptr<ElementCheck> ElementCheckFactory::make(const std::shared_ptr<Element>& element,
                                                        std::weak_ptr<Scenario> scenario) {
  const auto owner = scenario.lock();
  auto it = owner ? makers().find({owner->getScenarioType().getType(), element->getType()})
                  : makers().end();
  if (it == makers().end()) {
    throw std::invalid_argument("ElementCheckFactory::make(): invalid parameter key");
  }
  return it->second(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeReservoirCheckRule(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<RuleReservoirCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeDemandCheckRule(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<RuleDemandCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeBasinCheckRule(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<RuleBasinCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeLinkCheckRule(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<RuleLinkCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeJunctionCheckRule(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<RuleJunctionCheck>(element, scenario);
}
