#include "managers/MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer.h"

#include <algorithm>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/ReservoirRuleSettings.h"
#include "core/Scenario.h"
#include "machinelearning/MachineLearningDatasetIndexesToTest.h"
#include "rules/MachineLearningRegressionColVolumesReleaseRule.h"

using Optimizer = MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer;

namespace {

std::vector<MachineLearningDatasetIndexesToTest::ValidationStr> validationsOf(
    const MachineLearningRegressionColVolumesReleaseRule& rule,
    MachineLearningAlgorithmValidatorType validatorType, double percent) {
  return MachineLearningDatasetIndexesToTest::makeValidationStr(
      static_cast<uint32_t>(rule.getDataset().size()), percent, validatorType, false);
}

uint32_t largestTried(const MachineLearningRegressionColVolumesReleaseRule& rule,
                      uint32_t maxEntries) {
  return std::min(maxEntries, Optimizer::getMaxOptimizeNumberOfEntriesOfAverage(
                                  static_cast<uint32_t>(rule.getDataset().size())));
}

}  // namespace

uint32_t Optimizer::getMaxOptimizeNumberOfEntriesOfAverage(uint32_t datasetSize) {
  return static_cast<uint32_t>(datasetSize * 0.8);
}

std::map<unsigned int, uint32_t> Optimizer::make(
    const Scenario& scenario, MachineLearningAlgorithmValidatorType validatorType, double percent,
    uint32_t maxEntries) {
  std::map<unsigned int, uint32_t> found;
  for (const auto& reservoir :
       ElementsFilter::filterByType(ElementsFilter::filterByEnabledElements(scenario.getElements()),
                                    ElementSets::reservoir())) {
    const auto rule = std::dynamic_pointer_cast<MachineLearningRegressionColVolumesReleaseRule>(
        Scenario::getSettings<ReservoirRuleSettings>(reservoir, scenario.getSettingsManager())
            ->getRule());
    if (!rule || rule->getDataset().size() < 2) continue;
    rule->getAlgorithm()->optimizeNumberOfEntriesForAverage(
        validationsOf(*rule, validatorType, percent), 1,
        std::max(1u, largestTried(*rule, maxEntries)));
    found[reservoir->getId()] = rule->getNumberOfEntriesForAverage();
  }
  return found;
}

std::vector<std::pair<double, double>> Optimizer::makeError(
    const MachineLearningRegressionColVolumesReleaseRule& rule,
    MachineLearningAlgorithmValidatorType validatorType, double percent, uint32_t maxEntries) {
  const auto model = rule.getAlgorithm()->clone();
  const auto validations = validationsOf(rule, validatorType, percent);
  std::vector<std::pair<double, double>> errors;
  for (uint32_t entries = 1; entries <= largestTried(rule, maxEntries); ++entries) {
    errors.push_back(model->getError(validations, entries));
  }
  return errors;
}
