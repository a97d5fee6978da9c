#pragma once

#include "machinelearning/MachineLearningRegressionAlgorithm.h"
#include "scenario/ConfigureRuleElementFromPriorityAddon.h"

// Gives a model the settings of a conversion: the number of entries, the average, the distance and
// the error, then those of the model's kind.
class ConfigureMachineLearningRegressionAlgorithmByAddon {
 public:
  // Throws std::invalid_argument "ConfigureMachineLearningRegressionAlgorithm::make(): invalid
  // type" when the addon is not of a model's kind or not of the algorithm's.
  static void make(MachineLearningRegressionAlgorithm& algorithm,
                   const ConfigureRuleElementFromPriorityAddon& addon);

  static void makeDefault(MachineLearningRegressionAlgorithm& algorithm,
                          const ConfigureRuleElementFromPriorityAddon& addon);
  static void makeKNN(MachineLearningRegressionAlgorithm& algorithm,
                      const ConfigureRuleElementFromPriorityAddon& addon);
  static void makeRegressionTree(MachineLearningRegressionAlgorithm& algorithm,
                                 const ConfigureRuleElementFromPriorityAddon& addon);
  static void makeRandomForest(MachineLearningRegressionAlgorithm& algorithm,
                               const ConfigureRuleElementFromPriorityAddon& addon);
};
