#pragma once

#include "checks/SceneryCheck.h"

// The checks of a rule simulation, and those of the system curve's search: a multi-objective
// swarm has a single objective to compare here ("Quantidade de funções objetivo inferior a 2:");
// the out reservoir must be a reservoir of the scenario on an optimisable constant rule
// ("Reservatório de saída inválido"), enabled ("Reservatório de saída desabilitado") and with a
// single downstream link ("Reservatório de saída só poder um trecho a jusante"). Each finding is
// filed under the scenario's name.
class SystemGuaranteeCurveSceneryCheck : public RuleSceneryCheck {
 public:
  using RuleSceneryCheck::RuleSceneryCheck;

 protected:
  void runScenarioChecks() override;

 private:
  void checkNumberOfObjectiveFunctions();
  // Checks the out reservoir and gives it, or null when it is not valid.
  std::shared_ptr<Element> checkOutReservoir();
  void checkEnableOutReservoir(const Element& reservoir);
  void checkDownstreamOutReservoir(const Element& reservoir);
};
