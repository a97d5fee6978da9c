#include "machinelearning/MachineLearningRegressionDistanceCalculator.h"

#include <map>
#include <stdexcept>

#include "common/NumericalUtils.h"

double MachineLearningRegressionDistanceCalculator::make(
    const std::vector<double>& x, const MachineLearningRegressionDatasetEntry& entry,
    MachineLearningRegressionDistanceCalculatorType type) {
  using Maker =
      double (*)(const std::vector<double>&, const MachineLearningRegressionDatasetEntry&);
  using T = MachineLearningRegressionDistanceCalculatorType;
  static const std::map<T, Maker> makers = {{T::euclidean, &euclidean}, {T::manhattan, &manhattan}};
  const auto found = makers.find(type);
  if (found == makers.end()) {
    throw std::invalid_argument("KNNDistanceCalculator::make(): invalid type");
  }
  return found->second(x, entry);
}

double MachineLearningRegressionDistanceCalculator::euclidean(
    const std::vector<double>& x, const MachineLearningRegressionDatasetEntry& entry) {
  return NumericalUtils::euclideanDistance(
      NumericalUtils::makeVectorOfPoint2D(entry.attributes, x));
}

double MachineLearningRegressionDistanceCalculator::manhattan(
    const std::vector<double>& x, const MachineLearningRegressionDatasetEntry& entry) {
  return NumericalUtils::manhattanDistance(
      NumericalUtils::makeVectorOfPoint2D(entry.attributes, x));
}
