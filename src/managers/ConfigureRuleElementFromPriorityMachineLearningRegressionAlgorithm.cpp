#include "managers/ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm.h"

#include "common/PeriodWalker.h"
#include "core/ReservoirRuleSettings.h"
#include "managers/ConfigureMachineLearningRegressionAlgorithmByAddon.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"
#include "rules/ReleaseRuleFactory.h"
#include "scenario/PriorityScenario.h"
#include "scenario/RuleScenario.h"

namespace {

double resultAt(const Scenario& scenario, unsigned int elementId, SerieType type,
                const Date& date) {
  const auto& serie = scenario.getElement(elementId)->getOutputSerie(type, 0);
  return serie ? serie->getValue(date) : Serie::kEmptyValue;
}

}  // namespace

ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm::
    ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm(ReleaseRuleType ruleType)
    : ConfigureRuleElementFromPriority(
          "ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm"),
      ruleType(ruleType) {}

void ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm::
    configureMachineLearningRegressionColVolumesReleaseRule(
        unsigned int reservoirId, const PriorityScenario& priorityScenario,
        MachineLearningRegressionColVolumesReleaseRule& rule) {
  const auto& addon = *priorityScenario.getConfigureRuleElementFromPriorityAddon();
  const auto system = addon.getReservoirSystem(reservoirId);
  rule.setReservoirsIdsOfSystem(system);
  PeriodWalker::forEach(priorityScenario.getInterval(), [&](const Date& date) {
    MachineLearningRegressionColVolumesReleaseRule::Entry entry;
    for (const unsigned int id : system) {
      entry.attributes.push_back(resultAt(priorityScenario, id, SerieType::initialVolume, date));
    }
    entry.value = resultAt(priorityScenario, reservoirId, SerieType::releasedFlow, date);
    rule.addEntryOfDataSet(entry);
  });
  ConfigureMachineLearningRegressionAlgorithmByAddon::make(*rule.getAlgorithm(), addon);
}

void ConfigureRuleElementFromPriorityMachineLearningRegressionAlgorithm::configureReservoir(
    unsigned int reservoirId, const PriorityScenario& priorityScenario,
    RuleScenario& ruleScenario) const {
  const auto rule = std::static_pointer_cast<MachineLearningRegressionColVolumesReleaseRule>(
      ReleaseRuleFactory::make(ruleType));
  configureMachineLearningRegressionColVolumesReleaseRule(reservoirId, priorityScenario, *rule);
  Scenario::getSettings<ReservoirRuleSettings>(ruleScenario.getElement(reservoirId),
                                               ruleScenario.getSettingsManager())
      ->setRule(rule);
}
