#include "checks/ElementCheckFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "checks/DemandCheck.h"
#include "checks/LinkCheck.h"
#include "checks/NodeRuleChecks.h"
#include "checks/PriorityDemandCheck.h"
#include "checks/PriorityReservoirCheck.h"
#include "checks/ReservoirCheck.h"
#include "core/ElementSets.h"
#include "core/KeySettings.h"
#include "core/Scenario.h"

namespace {

using Maker = std::function<std::shared_ptr<ElementCheck>(const std::shared_ptr<Element>&,
                                                          std::weak_ptr<Scenario>)>;

void addPriorityMakers(std::map<KeySettings, Maker>& makers) {
  const ScenarioType priority = ScenarioType::priorityOptimizer;
  makers[{priority, ElementType::reservoir}] = ElementCheckFactory::makeReservoirCheckPriority;
  for (ElementType demand : ElementSets::consumerDemands()) {
    makers[{priority, demand}] = ElementCheckFactory::makeDemandCheckPriority;
  }
  makers[{priority, ElementType::drain}] = ElementCheckFactory::makeDrainDemandCheckPriority;
  makers[{priority, ElementType::basin}] = ElementCheckFactory::makeBasinCheckPriority;
  makers[{priority, ElementType::junction}] = ElementCheckFactory::makeJunctionCheckPriority;
  for (ElementType link : ElementSets::links()) {
    makers[{priority, link}] = ElementCheckFactory::makeLinkCheckPriority;
  }
}

// Optimisations and guarantee-curve searches run rule simulations, so their elements are checked
// as theirs.
void addRuleMakers(std::map<KeySettings, Maker>& makers, ScenarioType scenario) {
  makers[{scenario, ElementType::reservoir}] = ElementCheckFactory::makeReservoirCheckRule;
  for (ElementType demand : ElementSets::demands()) {
    makers[{scenario, demand}] = ElementCheckFactory::makeDemandCheckRule;
  }
  makers[{scenario, ElementType::basin}] = ElementCheckFactory::makeBasinCheckRule;
  makers[{scenario, ElementType::junction}] = ElementCheckFactory::makeJunctionCheckRule;
  for (ElementType link : ElementSets::links()) {
    makers[{scenario, link}] = ElementCheckFactory::makeLinkCheckRule;
  }
}

const std::map<KeySettings, Maker>& makers() {
  static const std::map<KeySettings, Maker> table = [] {
    std::map<KeySettings, Maker> result;
    addPriorityMakers(result);
    addRuleMakers(result, ScenarioType::ruleSimulator);
    addRuleMakers(result, ScenarioType::ruleOptimizer);
    addRuleMakers(result, ScenarioType::guaranteeCurve);
    addRuleMakers(result, ScenarioType::systemGuaranteeCurve);
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

std::shared_ptr<ElementCheck> ElementCheckFactory::makeReservoirCheckPriority(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PriorityReservoirCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeDemandCheckPriority(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PriorityDemandCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeDrainDemandCheckPriority(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PriorityDrainDemandCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeBasinCheckPriority(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PriorityBasinCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeLinkCheckPriority(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PriorityLinkCheck>(element, scenario);
}

std::shared_ptr<ElementCheck> ElementCheckFactory::makeJunctionCheckPriority(
    const std::shared_ptr<Element>& element, std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PriorityJunctionCheck>(element, scenario);
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
