#include "scenario/RuleScenario.h"

#include "checks/SceneryCheckFactory.h"
#include "core/ExecutionMethod.h"
#include "core/Link.h"
#include "core/Node.h"
#include "core/RuleSettings.h"
#include "operation/IsolatedRuleOperation.h"
#include "operation/RuleOperation.h"
#include "scenario/IsolatedNetworkSceneryManager.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

namespace {

std::shared_ptr<RuleSettings> ruleSettingsOf(const Scenario& scenario, unsigned int elementId) {
  return std::static_pointer_cast<RuleSettings>(
      scenario.getSettingsManager().getSettings(elementId));
}

}  // namespace

Enum<ScenarioType> RuleScenario::getScenarioType() const {
  return Vocabulary::of(ScenarioType::ruleSimulator);
}

void RuleScenario::addElement(const std::shared_ptr<Element>& element, bool rename) {
  Scenario::addElement(element, rename);
  ManageAllocationMatrixWithAddElement(element);
}

void RuleScenario::addElement(const std::shared_ptr<Element>& element, bool rename,
                              unsigned int id) {
  Scenario::addElement(element, rename, id);
  ManageAllocationMatrixWithAddElement(element);
}

void RuleScenario::removeElement(unsigned int id) {
  ManageAllocationMatrixWithRemoveElement(getElement(id));
  Scenario::removeElement(id);
}

void RuleScenario::posAddElement(const std::shared_ptr<Element>& element, bool) {
  ManageAllocationMatrixWithAddElement(element);
}

void RuleScenario::ManageAllocationMatrixWithAddElement(const std::shared_ptr<Element>& element) {
  if (auto link = std::dynamic_pointer_cast<Link>(element)) {
    const std::shared_ptr<Node> upstream = link->getUpstream();
    if (!upstream || !getSettingsManager().contains(upstream->getId())) return;
    auto settings = ruleSettingsOf(*this, upstream->getId());
    if (settings->getAllocation().count(link->getId()) == 0) {
      settings->addAllocationLink(link->getId());
    }
    return;
  }
  auto settings = ruleSettingsOf(*this, element->getId());
  if (!settings->isElementIdConfigured()) {
    settings->setElementId(element->getId());
    settings->addAllocationLine();
  }
}

void RuleScenario::ManageAllocationMatrixWithRemoveElement(
    const std::shared_ptr<Element>& element) {
  auto link = std::dynamic_pointer_cast<Link>(element);
  if (!link) return;
  const std::shared_ptr<Node> upstream = link->getUpstream();
  if (upstream && getSettingsManager().contains(upstream->getId())) {
    ruleSettingsOf(*this, upstream->getId())->removeAllocationLink(link->getId());
  }
}

std::shared_ptr<OperationSystem> RuleScenario::getOperationSystem() {
  return std::make_shared<RuleOperation>(getSettingsManager(), getElements(), getInterval(),
                                         getExecutionMethod()->getZeroContribution(),
                                         getScenarioType());
}

bool RuleScenario::runIsolated(const Progress& progress) {
  if (getElements().empty()) return false;
  setSceneryStatus(IsolatedNetworkSceneryManager::runIsolated(*this, progress));
  return getSceneryStatus().getType() == SceneryStatus::success;
}

std::shared_ptr<OperationSystem> RuleScenario::getIsolatedOperationSystem(
    unsigned int isolatedScenarioId) {
  return std::make_shared<IsolatedRuleOperation>(
      getSettingsManager(), getElements(), getInterval(),
      getExecutionMethod()->getZeroContribution(), getScenarioType(), isolatedScenarioId,
      ScenarioManager::getInstance().getSceneryIsolatedDataByID(isolatedScenarioId));
}

std::shared_ptr<Scenario> RuleScenario::copySpecific() const {
  return std::make_shared<RuleScenario>(getExecutionMethod()->copy(), getId(), getInterval(),
                                        getName());
}

std::shared_ptr<SceneryCheck> RuleScenario::makeSceneryCheck() {
  return SceneryCheckFactory::makeRuleCheck(weak_from_this());
}

bool RuleScenario::passesSceneryCheck(SceneryCheck& check) { return check.passes(); }
