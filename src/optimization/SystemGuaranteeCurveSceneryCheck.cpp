#include "optimization/SystemGuaranteeCurveSceneryCheck.h"

#include <algorithm>

#include "core/ElementSets.h"
#include "core/Node.h"
#include "core/ReservoirRuleSettings.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "rules/OptConstReleaseRule.h"

namespace {

const SystemGuaranteeCurveScenario& curveScenario(const std::shared_ptr<Scenario>& scenario) {
  return static_cast<const SystemGuaranteeCurveScenario&>(*scenario);
}

}  // namespace

void SystemGuaranteeCurveSceneryCheck::runScenarioChecks() {
  RuleSceneryCheck::runScenarioChecks();
  checkNumberOfObjectiveFunctions();
  if (const auto reservoir = checkOutReservoir()) {
    checkEnableOutReservoir(*reservoir);
    checkDownstreamOutReservoir(*reservoir);
  }
}

void SystemGuaranteeCurveSceneryCheck::checkNumberOfObjectiveFunctions() {
  const auto scenario = getScenario();
  const auto& algorithm =
      curveScenario(scenario).getExecutionSystemGuaranteeCurve().getOptimizationAlgorithm();
  if (algorithm && algorithm->getType() != OptimizationAlgorithmType::pso) {
    addError(scenario->getName(), "Quantidade de funções objetivo inferior a 2:");
  }
}

std::shared_ptr<Element> SystemGuaranteeCurveSceneryCheck::checkOutReservoir() {
  const auto scenario = getScenario();
  const auto id =
      curveScenario(scenario).getExecutionSystemGuaranteeCurve().getOutSystemReservoirId();
  const auto& elements = scenario->getElements();
  const auto it = std::find_if(elements.begin(), elements.end(),
                               [id](const auto& element) { return element->getId() == id; });
  const bool reservoir =
      it != elements.end() && ElementSets::reservoir().count((*it)->getType()) > 0;
  const auto settings = reservoir ? std::dynamic_pointer_cast<ReservoirRuleSettings>(
                                        scenario->getSettingsManager().getSettings(id))
                                  : nullptr;
  if (!settings || !std::dynamic_pointer_cast<OptConstReleaseRule>(settings->getRule())) {
    addError(scenario->getName(), "Reservatório de saída inválido");
    return nullptr;
  }
  return *it;
}

void SystemGuaranteeCurveSceneryCheck::checkEnableOutReservoir(const Element& reservoir) {
  if (!reservoir.isEnabled())
    addError(getScenario()->getName(), "Reservatório de saída desabilitado");
}

void SystemGuaranteeCurveSceneryCheck::checkDownstreamOutReservoir(const Element& reservoir) {
  if (static_cast<const Node&>(reservoir).getDownstreamLinks().size() > 1) {
    addError(getScenario()->getName(), "Reservatório de saída só poder um trecho a jusante");
  }
}
