#pragma once

#include "checks/SceneryCheck.h"

// The checks of a rule simulation, and a swarm must have at least two objectives to compare:
// "Quantidade de funções objetivo inferior a 2:" under the scenario's name otherwise.
class RuleOptimizationSceneryCheck : public RuleSceneryCheck {
 public:
  using RuleSceneryCheck::RuleSceneryCheck;

 protected:
  void runScenarioChecks() override;

 private:
  void checkNumberOfObjectiveFunctions();
};
