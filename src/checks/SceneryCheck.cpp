#include "checks/SceneryCheck.h"

#include <algorithm>
#include <stdexcept>

#include "checks/ElementCheckFactory.h"
#include "core/ExecutionMethod.h"
#include "core/Scenario.h"

void SceneryCheck::check() {
  clean();
  intervalPeriodLessThanWindowSize();
  checkLoop();
  checkHasEnabledElements();
  runScenarioChecks();
  const auto owner = getScenario();
  for (const auto& element : owner->getElements()) {
    if (!element->isEnabled()) continue;
    auto elementCheck = ElementCheckFactory::make(element, owner);
    elementCheck->check();
    elementChecks[element->getId()] = elementCheck;
    checkedOrder.push_back(element->getId());
  }
}

void SceneryCheck::runScenarioChecks() {}

bool SceneryCheck::isOk() const {
  for (const auto& entry : elementChecks) {
    if (!entry.second->isOk()) return false;
  }
  return CheckCompleteness::isOk();
}

std::size_t SceneryCheck::getNumErrors() const {
  std::size_t count = CheckCompleteness::getNumErrors();
  for (const auto& entry : elementChecks) count += entry.second->getNumErrors();
  return count;
}

const std::vector<CheckCompleteness::ErrorStruct>& SceneryCheck::getElementErrors(
    unsigned int elementId) const {
  auto it = elementChecks.find(elementId);
  if (it == elementChecks.end()) {
    throw std::invalid_argument("SceneryCheck::getElementErrors: invalid element id");
  }
  return it->second->getErrors();
}

std::vector<CheckCompleteness::ErrorStruct> SceneryCheck::getAllErrors() const {
  std::vector<ErrorStruct> all = getErrors();
  for (unsigned int id : checkedOrder) {
    const auto& errors = elementChecks.at(id)->getErrors();
    all.insert(all.end(), errors.begin(), errors.end());
  }
  return all;
}

void SceneryCheck::clean() {
  elementChecks.clear();
  checkedOrder.clear();
  clearErrors();
}

void SceneryCheck::intervalPeriodLessThanWindowSize() {
  const auto owner = getScenario();
  if (owner->getInterval().period() < owner->getExecutionMethod()->getWindowSize()) {
    addError(owner->getName(), "Período do intervalo menor que a quantidade de datas da janela:");
  }
}

void SceneryCheck::checkLoop() {
  if (getScenario()->hasLoop()) addError(getScenario()->getName(), "Existe um loop na rede");
}

void SceneryCheck::checkHasEnabledElements() {
  const auto& elements = getScenario()->getElements();
  const bool any = std::any_of(elements.begin(), elements.end(),
                               [](const auto& element) { return element->isEnabled(); });
  // A run of nothing would "succeed" and store nothing.
  if (!any) addError(getScenario()->getName(), "Cenário sem elementos habilitados");
}
