#include "managers/ConfigureMachineLearningRegressionAlgorithmByAddon.h"

#include <map>
#include <stdexcept>

#include "machinelearning/KNNRegressionAlgorithm.h"
#include "machinelearning/RegressionRandomForestAlgorithm.h"
#include "machinelearning/RegressionTreeAlgorithm.h"
#include "scenario/ConfigureRuleElementFromPriorityKNNAddon.h"
#include "scenario/ConfigureRuleElementFromPriorityRandomForestAddon.h"
#include "scenario/ConfigureRuleElementFromPriorityRegressionTreeAddon.h"

namespace {

constexpr const char* kInvalidType =
    "ConfigureMachineLearningRegressionAlgorithm::make(): invalid type";

// The pair of the algorithm and the addon as the kind Model, Addon they must both be.
template <typename Model, typename Addon>
std::pair<Model&, const Addon&> asKind(MachineLearningRegressionAlgorithm& algorithm,
                                       const ConfigureRuleElementFromPriorityAddon& addon) {
  auto* model = dynamic_cast<Model*>(&algorithm);
  const auto* settings = dynamic_cast<const Addon*>(&addon);
  if (model == nullptr || settings == nullptr) throw std::invalid_argument(kInvalidType);
  return {*model, *settings};
}

// Trees and the trees of a forest take the same three limits.
template <typename Model>
void applyTreeLimits(Model& model, const TreeLimits& limits) {
  model.setMaxNumberOfLeaves(limits.maxNumberOfLeaves);
  model.setMaxDepth(limits.maxDepth);
  model.setCp(limits.cp);
}

}  // namespace

void ConfigureMachineLearningRegressionAlgorithmByAddon::make(
    MachineLearningRegressionAlgorithm& algorithm,
    const ConfigureRuleElementFromPriorityAddon& addon) {
  using C = ConfigureRuleElementType;
  static const std::map<ConfigureRuleElementType,
                        void (*)(MachineLearningRegressionAlgorithm&,
                                 const ConfigureRuleElementFromPriorityAddon&)>
      kinds{{C::knn, makeKNN},
            {C::regressionTree, makeRegressionTree},
            {C::randomForest, makeRandomForest}};
  const auto found = kinds.find(addon.getType().getType());
  if (found == kinds.end()) throw std::invalid_argument(kInvalidType);
  makeDefault(algorithm, addon);
  found->second(algorithm, addon);
}

void ConfigureMachineLearningRegressionAlgorithmByAddon::makeDefault(
    MachineLearningRegressionAlgorithm& algorithm,
    const ConfigureRuleElementFromPriorityAddon& addon) {
  algorithm.setNumberOfEntriesForAverage(addon.getNumberOfEntriesForAverage());
  algorithm.setDistanceCalculatorType(addon.getDistanceCalculatorType().getType());
  algorithm.setAverageCalculatorType(addon.getAverageCalculatorType().getType());
  algorithm.setErrorType(addon.getErrorType().getType());
}

void ConfigureMachineLearningRegressionAlgorithmByAddon::makeKNN(
    MachineLearningRegressionAlgorithm& algorithm,
    const ConfigureRuleElementFromPriorityAddon& addon) {
  auto [knn, settings] =
      asKind<KNNRegressionAlgorithm, ConfigureRuleElementFromPriorityKNNAddon>(algorithm, addon);
  knn.setNormalize(settings.isNormalize());
}

void ConfigureMachineLearningRegressionAlgorithmByAddon::makeRegressionTree(
    MachineLearningRegressionAlgorithm& algorithm,
    const ConfigureRuleElementFromPriorityAddon& addon) {
  auto [tree, settings] =
      asKind<RegressionTreeAlgorithm, ConfigureRuleElementFromPriorityRegressionTreeAddon>(
          algorithm, addon);
  applyTreeLimits(tree, settings.getTreeLimits());
}

void ConfigureMachineLearningRegressionAlgorithmByAddon::makeRandomForest(
    MachineLearningRegressionAlgorithm& algorithm,
    const ConfigureRuleElementFromPriorityAddon& addon) {
  auto [forest, settings] =
      asKind<RegressionRandomForestAlgorithm, ConfigureRuleElementFromPriorityRandomForestAddon>(
          algorithm, addon);
  forest.setNumberOfTrees(settings.getNumberOfTrees());
  forest.setNumberOfAttributesInTree(settings.getNumberOfAttributesInTree());
  forest.setDatasetPercentInTree(settings.getDatasetPercentInTree());
  forest.setReplacement(settings.isReplacement());
  applyTreeLimits(forest, settings.getTreeLimits());
}
