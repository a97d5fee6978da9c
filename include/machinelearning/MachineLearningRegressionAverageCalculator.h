#pragma once

#include <vector>

#include "machinelearning/MachineLearningRegressionDatasetEntry.h"
#include "vocabulary/MachineLearningVocabulary.h"

// The answer of a model from the entries it picked: an average of their values. The weighted
// averages weigh an entry by 1 / distance, and by 1e7 when the distance is 0 within 1e-6, so that
// a query equal to a training point is all but answered by that point. Every average of no entries
// is 0.0; a geometric or harmonic average with a value of 0 is 0.
class MachineLearningRegressionAverageCalculator {
 public:
  // The average of the type over the entries' values. Throws std::invalid_argument
  // "MachineLearningRegressionAverageCalculator::make(): invalid type" for a type outside the
  // vocabulary, and VectorStatistics' failure for a negative value under a geometric or harmonic
  // average.
  static double make(MachineLearningRegressionAverageCalculatorType type,
                     const std::vector<MachineLearningRegressionDatasetEntry>& entries);
  // The same over values with their weights (used by the weighted types alone), for callers that
  // average many parts of one list. Throws as above, and VectorStatistics' failure when the sizes
  // differ.
  static double make(MachineLearningRegressionAverageCalculatorType type,
                     const std::vector<double>& values, const std::vector<double>& weights);
  // The weight of one entry in the weighted averages.
  static double weight(const MachineLearningRegressionDatasetEntry& entry);
};
