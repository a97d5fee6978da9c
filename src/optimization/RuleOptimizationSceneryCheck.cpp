#include "optimization/RuleOptimizationSceneryCheck.h"

#include <algorithm>

#include "optimization/RuleOptimizationScenario.h"
#include "optimization/expression/ElementStoreExpression.h"

namespace {

bool hasElement(const Scenario& scenario, unsigned int id) {
  const auto& elements = scenario.getElements();
  return std::any_of(elements.begin(), elements.end(),
                     [id](const auto& element) { return element->getId() == id; });
}

}  // namespace

void RuleOptimizationSceneryCheck::runScenarioChecks() {
  RuleSceneryCheck::runScenarioChecks();
  checkNumberOfObjectiveFunctions();
  checkPersonalizedObjectiveFunctions();
}

void RuleOptimizationSceneryCheck::checkNumberOfObjectiveFunctions() {
  const auto scenario = std::static_pointer_cast<RuleOptimizationScenario>(getScenario());
  if (scenario->getExecutionOptimization().numberOfObjectives() < 2) {
    addError(scenario->getName(), "Quantidade de funções objetivo inferior a 2:");
  }
}

void RuleOptimizationSceneryCheck::checkPersonalizedObjectiveFunctions() {
  const auto scenario = std::static_pointer_cast<RuleOptimizationScenario>(getScenario());
  for (const auto& configuration :
       scenario->getExecutionOptimization().getVectorOfExpressionDefinitionConfiguration()) {
    if (!configuration.isEnabled()) continue;
    const auto root =
        std::dynamic_pointer_cast<ElementStoreExpression>(configuration.getRootExpression());
    if (!root || !root->validate()) {
      addError(configuration.getName(), "Função objetivo personalizada incompleta:");
      continue;
    }
    for (const unsigned int id : root->getElementIDs()) {
      if (!hasElement(*scenario, id)) {
        addError(configuration.getName(),
                 "Função objetivo personalizada sobre elemento inexistente:");
        break;
      }
    }
  }
}
