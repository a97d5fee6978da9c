#include "managers/AutomatedScenarioBuilder.h"

#include <stdexcept>
#include <string>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/KOVACoreProgressBar.h"
#include "core/ReservoirRuleSettings.h"
#include "managers/ConfigureRuleElementFromPriorityFactory.h"
#include "operation/ExecutionContinuous.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SceneryTransformationFactory.h"
#include "project/database/DatabaseInsert.h"
#include "project/database/DatabaseSceneryCopy.h"
#include "rules/ConstReleaseRule.h"
#include "rules/OptReleaseRule.h"
#include "scenario/PriorityScenario.h"
#include "scenario/ScenarioManager.h"

namespace {

constexpr unsigned int kSteps = 5;
constexpr unsigned int kCurveSteps = 4;
constexpr unsigned int kConversionSteps = 3;

}  // namespace

std::shared_ptr<RuleScenario> AutomatedScenarioBuilder::makeRuleScenarioFromOptimization(
    const RuleOptimizationScenario& source, unsigned int solutionLineIndex,
    const Progress& progress) {
  const auto& solutions = source.getMatrixOfSolutions();
  if (solutionLineIndex >= solutions.size()) {
    throw std::invalid_argument(
        "AutomatedScenarioBuilder::makeRuleScenarioFromOptimization: solutionLineIndex out of "
        "range of solutionMatrix");
  }
  KOVACoreProgressBar bar(0, kSteps, progress);
  auto scenario = continuousCopy(source, "-SOL-" + std::to_string(solutionLineIndex));
  if (!bar.update()) return nullptr;
  const auto reservoirs =
      ElementsFilter::filterByType(scenario->getElements(), ElementSets::reservoir());
  OptimizationUtils::setDecisionVars(solutions[solutionLineIndex], reservoirs,
                                     scenario->getSettingsManager());
  if (!bar.update()) return nullptr;
  convertOptRuleReleaseToRuleRelease(*scenario);
  if (!bar.update()) return nullptr;
  return store(scenario, bar) ? scenario : nullptr;
}

std::shared_ptr<RuleScenario> AutomatedScenarioBuilder::makeRuleScenarioFromGuaranteeCurve(
    const GuaranteeCurveScenario& source, unsigned int row, const Progress& progress) {
  const auto& curve = source.getExecutionGuaranteeCurve().getGuaranteeStr();
  if (row >= curve.values.size()) {
    throw std::invalid_argument(
        "AutomatedScenarioBuilder::makeRuleScenarioFromGuaranteeCurve: row out of range of the "
        "curve");
  }
  KOVACoreProgressBar bar(0, kCurveSteps, progress);
  auto scenario = continuousCopy(source, "-GUA-" + std::to_string(row));
  if (!bar.update()) return nullptr;
  for (std::size_t column = 0; column < curve.reservoirIds.size(); ++column) {
    auto rule = std::make_shared<ConstReleaseRule>();
    rule->setRelease(curve.values[row][column]);
    Scenario::getSettings<ReservoirRuleSettings>(scenario->getElement(curve.reservoirIds[column]),
                                                 scenario->getSettingsManager())
        ->setRule(rule);
  }
  if (!bar.update()) return nullptr;
  return store(scenario, bar) ? scenario : nullptr;
}

std::shared_ptr<RuleScenario> AutomatedScenarioBuilder::makeRuleScenarioFromPriority(
    const PriorityScenario& source, const Progress& progress) {
  const auto& kind = source.getConfigureRuleElementFromPriorityAddon()->getType();
  KOVACoreProgressBar bar(0, static_cast<long>(source.getElements().size()) + 3, progress);
  auto scenario = continuousCopy(source, "-rule-" + kind.getName());
  scenario->remakeSettings();
  if (!bar.update()) return nullptr;
  if (!store(scenario, bar)) return nullptr;
  for (const auto& element : source.getElements()) {
    ConfigureRuleElementFromPriorityFactory::make(kind.getType(), element->getId(), source,
                                                  *scenario);
    if (!bar.update()) return nullptr;
  }
  // The learned rules find their reservoirs and learn.
  scenario->resolveRuleReferences();
  return scenario;
}

std::shared_ptr<RuleScenario> AutomatedScenarioBuilder::continuousCopy(const Scenario& source,
                                                                       const std::string& suffix) {
  auto scenario = std::make_shared<RuleScenario>(std::make_shared<ExecutionContinuous>(),
                                                 ScenarioManager::getInstance().getNextScenarioId(),
                                                 source.getInterval(), source.getName() + suffix);
  source.copyNetworkInto(*scenario);
  scenario->resolveRuleReferences();
  return scenario;
}

bool AutomatedScenarioBuilder::store(const std::shared_ptr<Scenario>& scenario,
                                     KOVACoreProgressBar& bar) {
  DatabaseInsert::insertSceneryEntryInDatabase(*scenario);
  if (!bar.update()) return false;
  return DatabaseSceneryCopy::sceneryCopy(scenario, nullptr) && bar.update();
}

std::shared_ptr<Scenario> AutomatedScenarioBuilder::makeScenarioOfKind(const Scenario& source,
                                                                       ScenarioType to,
                                                                       const std::string& name,
                                                                       const Progress& progress) {
  const auto transformation = SceneryTransformationFactory::make(
      static_cast<int>(source.getScenarioType().getType()), static_cast<int>(to));
  KOVACoreProgressBar bar(0, kConversionSteps, progress);
  auto scenario =
      transformation->transform(source, ScenarioManager::getInstance().getNextScenarioId());
  scenario->setName(name);
  if (!bar.update()) return nullptr;
  return store(scenario, bar) ? scenario : nullptr;
}

void AutomatedScenarioBuilder::convertOptRuleReleaseToRuleRelease(Scenario& scenario) {
  for (const auto& reservoir :
       ElementsFilter::filterByType(scenario.getElements(), ElementSets::reservoir())) {
    const auto settings = std::dynamic_pointer_cast<ReservoirRuleSettings>(
        scenario.getSettingsManager().getSettings(reservoir->getId()));
    const auto rule =
        settings ? std::dynamic_pointer_cast<OptReleaseRule>(settings->getRule()) : nullptr;
    if (rule) settings->setRule(rule->convertToReleaseRule());
  }
  scenario.resolveRuleReferences();
}
