#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "vocabulary/MachineLearningVocabulary.h"

class MachineLearningRegressionColVolumesReleaseRule;
class Scenario;

// Searches, for the learned rules of a scenario, the number of entries each model averages (a
// tree: the least number of entries of a node it may split) that errs least on the entries a
// validation leaves out.
class MachineLearningRegressionColVolumesReleaseRuleNumberOfEntriesOfAverageOptimizer {
 public:
  // What a search may try at most: 80 % of the entries, truncated.
  static uint32_t getMaxOptimizeNumberOfEntriesOfAverage(uint32_t datasetSize);

  // Sets the number of entries of the learned rule of every enabled reservoir of scenario to the
  // best of 1 .. min(maxEntries, getMaxOptimizeNumberOfEntriesOfAverage()) over the validations of
  // validatorType with percent of the entries training, and retrains it; gives the numbers found
  // by reservoir id. A rule with fewer than two entries is left as it is.
  static std::map<unsigned int, uint32_t> make(const Scenario& scenario,
                                               MachineLearningAlgorithmValidatorType validatorType,
                                               double percent, uint32_t maxEntries);
  // The pair (test error, train error) of the rule's model for each number of entries from 1 to
  // maxEntries, over the same validations; the rule is left as it was.
  static std::vector<std::pair<double, double>> makeError(
      const MachineLearningRegressionColVolumesReleaseRule& rule,
      MachineLearningAlgorithmValidatorType validatorType, double percent, uint32_t maxEntries);
};
