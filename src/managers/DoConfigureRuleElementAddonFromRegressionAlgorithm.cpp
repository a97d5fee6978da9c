#include "managers/DoConfigureRuleElementAddonFromRegressionAlgorithm.h"

#include <map>
#include <stdexcept>

#include "rules/KNNRegressionColVolumesReleaseRule.h"
#include "rules/RegressionRandomForestColVolumesReleaseRule.h"
#include "rules/RegressionTreeColVolumesReleaseRule.h"
#include "scenario/ConfigureRuleElementFromPriorityKNNAddon.h"
#include "scenario/ConfigureRuleElementFromPriorityRandomForestAddon.h"
#include "scenario/ConfigureRuleElementFromPriorityRegressionTreeAddon.h"

using Rule = MachineLearningRegressionColVolumesReleaseRule;
using Addon = ConfigureRuleElementFromPriorityAddon;

namespace {

// The rule and the addon as the kind Kind, AddonKind they must both be.
template <typename Kind, typename AddonKind>
std::pair<const Kind&, AddonKind&> asKind(const Rule& rule, Addon& addon) {
  const auto* kind = dynamic_cast<const Kind*>(&rule);
  auto* settings = dynamic_cast<AddonKind*>(&addon);
  if (kind == nullptr || settings == nullptr) {
    throw std::invalid_argument(
        "DoConfigureRuleElementAddonFromRegressionAlgorithm::configure(): invalid type");
  }
  return {*kind, *settings};
}

}  // namespace

void DoConfigureRuleElementAddonFromRegressionAlgorithm::configure(const Rule& rule, Addon& addon) {
  using R = ReleaseRuleType;
  static const std::map<ReleaseRuleType, void (*)(const Rule&, Addon&)> kinds{
      {R::knnRegression, configureKNNColVolumesAddon},
      {R::regressionTree, configureRegressionTreeColVolumesAddon},
      {R::randomForest, configureRegressionRandomForestColVolumesAddon}};
  kinds.at(rule.getType().getType())(rule, addon);
  configureColVolumes(rule, addon);
}

void DoConfigureRuleElementAddonFromRegressionAlgorithm::configureColVolumes(const Rule& rule,
                                                                             Addon& addon) {
  addon.setNumberOfEntriesForAverage(rule.getNumberOfEntriesForAverage());
  addon.setAverageCalculatorType(rule.getAverageCalculatorType().getType());
  addon.setDistanceCalculatorType(rule.getDistanceCalculatorType().getType());
  addon.setErrorType(rule.getErrorType().getType());
}

void DoConfigureRuleElementAddonFromRegressionAlgorithm::configureKNNColVolumesAddon(
    const Rule& rule, Addon& addon) {
  auto [knn, settings] =
      asKind<KNNRegressionColVolumesReleaseRule, ConfigureRuleElementFromPriorityKNNAddon>(rule,
                                                                                           addon);
  settings.setNormalize(knn.isNormalize());
}

void DoConfigureRuleElementAddonFromRegressionAlgorithm::configureRegressionTreeColVolumesAddon(
    const Rule& rule, Addon& addon) {
  auto [tree, settings] = asKind<RegressionTreeColVolumesReleaseRule,
                                 ConfigureRuleElementFromPriorityRegressionTreeAddon>(rule, addon);
  settings.setTreeLimits({tree.getMaxNumberOfLeaves(), tree.getMaxDepth(), tree.getCp()});
}

void DoConfigureRuleElementAddonFromRegressionAlgorithm::
    configureRegressionRandomForestColVolumesAddon(const Rule& rule, Addon& addon) {
  auto [forest, settings] = asKind<RegressionRandomForestColVolumesReleaseRule,
                                   ConfigureRuleElementFromPriorityRandomForestAddon>(rule, addon);
  settings.setNumberOfTrees(forest.getNumberOfTrees());
  settings.setNumberOfAttributesInTree(forest.getNumberOfAttributesInTree());
  settings.setDatasetPercentInTree(forest.getDatasetPercentInTree());
  settings.setReplacement(forest.isReplacement());
  settings.setTreeLimits({forest.getMaxNumberOfLeaves(), forest.getMaxDepth(), forest.getCp()});
}
