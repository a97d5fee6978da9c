#include "machinelearning/MachineLearningRegressionAverageCalculator.h"

#include <map>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/VectorStatistics.h"

namespace {

using Entries = std::vector<MachineLearningRegressionDatasetEntry>;

std::vector<double> valuesOf(const Entries& entries) {
  std::vector<double> values;
  values.reserve(entries.size());
  for (const auto& entry : entries) values.push_back(entry.value);
  return values;
}

std::vector<double> weightsOf(const Entries& entries) {
  std::vector<double> weights;
  weights.reserve(entries.size());
  for (const auto& entry : entries) {
    weights.push_back(MachineLearningRegressionAverageCalculator::weight(entry));
  }
  return weights;
}

template <double (*average)(const std::vector<double>&)>
double plain(const std::vector<double>& values, const std::vector<double>&) {
  return average(values);
}

}  // namespace

double MachineLearningRegressionAverageCalculator::make(
    MachineLearningRegressionAverageCalculatorType type, const Entries& entries) {
  return make(type, valuesOf(entries), weightsOf(entries));
}

double MachineLearningRegressionAverageCalculator::make(
    MachineLearningRegressionAverageCalculatorType type, const std::vector<double>& values,
    const std::vector<double>& weights) {
  using Maker = double (*)(const std::vector<double>&, const std::vector<double>&);
  using T = MachineLearningRegressionAverageCalculatorType;
  static const std::map<T, Maker> makers = {
      {T::arithmetic, &plain<VectorStatistics::average>},
      {T::geometric, &plain<VectorStatistics::geometricAverage>},
      {T::harmonic, &plain<VectorStatistics::harmonicAverage>},
      {T::weightedArithmetic, &VectorStatistics::weightedAverage},
      {T::weightedGeometric, &VectorStatistics::weightedGeometricAverage},
      {T::weightedHarmonic, &VectorStatistics::weightedHarmonicAverage},
  };
  const auto found = makers.find(type);
  if (found == makers.end()) {
    throw std::invalid_argument("MachineLearningRegressionAverageCalculator::make(): invalid type");
  }
  // A tree's cut that leaves one side empty asks for the average of nothing.
  if (values.empty()) return 0.0;
  return found->second(values, weights);
}

double MachineLearningRegressionAverageCalculator::weight(
    const MachineLearningRegressionDatasetEntry& entry) {
  constexpr double kWeightOfAnEqualPoint = 1e7;
  if (NumericalUtils::compareDoubles(entry.distance, 0.0, 1e-6)) return kWeightOfAnEqualPoint;
  return 1.0 / entry.distance;
}
