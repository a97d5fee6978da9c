#include "checks/SceneryCheckFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/Scenario.h"

std::shared_ptr<SceneryCheck> SceneryCheckFactory::make(std::weak_ptr<Scenario> scenario) {
  static const std::map<ScenarioType,
                        std::function<std::shared_ptr<SceneryCheck>(std::weak_ptr<Scenario>)>>
      makers = {
          {ScenarioType::priorityOptimizer, makePriorityCheck},
          {ScenarioType::ruleSimulator, makeRuleCheck},
          {ScenarioType::guaranteeCurve, makeGuaranteeCurveCheck},
      };
  const auto owner = scenario.lock();
  auto it = owner ? makers.find(owner->getScenarioType().getType()) : makers.end();
  if (it == makers.end()) {
    throw std::invalid_argument("SceneryCheckFactory::make(): invalid scenery type");
  }
  return it->second(scenario);
}

std::shared_ptr<SceneryCheck> SceneryCheckFactory::makePriorityCheck(
    std::weak_ptr<Scenario> scenario) {
  return std::make_shared<PrioritySceneryCheck>(scenario);
}

std::shared_ptr<SceneryCheck> SceneryCheckFactory::makeRuleCheck(std::weak_ptr<Scenario> scenario) {
  return std::make_shared<RuleSceneryCheck>(scenario);
}

std::shared_ptr<SceneryCheck> SceneryCheckFactory::makeGuaranteeCurveCheck(
    std::weak_ptr<Scenario> scenario) {
  return std::make_shared<GuaranteeCurveSceneryCheck>(scenario);
}
