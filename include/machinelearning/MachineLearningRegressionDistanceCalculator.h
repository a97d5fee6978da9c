#pragma once

#include <vector>

#include "machinelearning/MachineLearningRegressionDatasetEntry.h"
#include "vocabulary/MachineLearningVocabulary.h"

// The distance between a query and a dataset entry, over their attributes taken in pairs.
class MachineLearningRegressionDistanceCalculator {
 public:
  // The distance of the type between x and entry.attributes. Throws std::invalid_argument
  // "KNNDistanceCalculator::make(): invalid type" for a type outside the vocabulary, and
  // "NumericalUtils::makeVectorOfPoint2D(): x and y differ in size" when the sizes differ.
  static double make(const std::vector<double>& x,
                     const MachineLearningRegressionDatasetEntry& entry,
                     MachineLearningRegressionDistanceCalculatorType type);
  // sqrt(sum((a - x)^2)).
  static double euclidean(const std::vector<double>& x,
                          const MachineLearningRegressionDatasetEntry& entry);
  // sum(|a - x|).
  static double manhattan(const std::vector<double>& x,
                          const MachineLearningRegressionDatasetEntry& entry);
};
