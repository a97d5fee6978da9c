#pragma once

#include "checks/SceneryCheck.h"

// The checks of a rule simulation, and a swarm must have at least two objectives to compare:
// "Quantidade de funções objetivo inferior a 2:" under the scenario's name otherwise, counting the
// enabled personalised functions. An enabled personalised function must be complete and start on
// elements the scenario has: "Função objetivo personalizada incompleta:" or "Função objetivo
// personalizada sobre elemento inexistente:" under its name otherwise.
class RuleOptimizationSceneryCheck : public RuleSceneryCheck {
 public:
  using RuleSceneryCheck::RuleSceneryCheck;

 protected:
  void runScenarioChecks() override;

 private:
  void checkNumberOfObjectiveFunctions();
  void checkPersonalizedObjectiveFunctions();
};
