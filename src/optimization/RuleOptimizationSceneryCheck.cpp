#include "optimization/RuleOptimizationSceneryCheck.h"

#include "optimization/RuleOptimizationScenario.h"

void RuleOptimizationSceneryCheck::runScenarioChecks() {
  RuleSceneryCheck::runScenarioChecks();
  checkNumberOfObjectiveFunctions();
}

void RuleOptimizationSceneryCheck::checkNumberOfObjectiveFunctions() {
  const auto scenario = std::static_pointer_cast<RuleOptimizationScenario>(getScenario());
  if (scenario->getExecutionOptimization().getVectorOfObjectiveFunctions().size() < 2) {
    addError(scenario->getName(), "Quantidade de funções objetivo inferior a 2:");
  }
}
