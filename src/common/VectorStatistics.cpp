#include "common/VectorStatistics.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>
#include <string>

namespace {

[[noreturn]] void fail(const char* function, const char* reason) {
  throw std::invalid_argument(std::string("VectorStatistics::") + function + "(): " + reason);
}

void requireValues(const std::vector<double>& values, const char* function) {
  if (values.empty()) fail(function, "empty vector");
}

// Geometric and harmonic means are only defined over quantities that cannot be negative.
void requireNonNegative(const std::vector<double>& values, const char* function) {
  requireValues(values, function);
  if (std::any_of(values.begin(), values.end(), [](double v) { return v < 0.0; })) {
    fail(function, "negative value");
  }
}

// Checks the weights and gives their sum.
double weightSum(const std::vector<double>& values, const std::vector<double>& weights,
                 const char* function) {
  if (values.size() != weights.size()) fail(function, "values and weights differ in size");
  const double total = std::accumulate(weights.begin(), weights.end(), 0.0);
  if (total == 0.0) fail(function, "weights sum to zero");
  return total;
}

double squaredDeviations(const std::vector<double>& values) {
  const double mean = VectorStatistics::average(values);
  double total = 0.0;
  for (double v : values) total += (v - mean) * (v - mean);
  return total;
}

}  // namespace

double VectorStatistics::min(const std::vector<double>& values) {
  requireValues(values, "min");
  return *std::min_element(values.begin(), values.end());
}

double VectorStatistics::max(const std::vector<double>& values) {
  requireValues(values, "max");
  return *std::max_element(values.begin(), values.end());
}

double VectorStatistics::sum(const std::vector<double>& values) {
  return std::accumulate(values.begin(), values.end(), 0.0);
}

double VectorStatistics::average(const std::vector<double>& values) {
  requireValues(values, "average");
  return sum(values) / static_cast<double>(values.size());
}

double VectorStatistics::weightedAverage(const std::vector<double>& values,
                                         const std::vector<double>& weights) {
  if (values.empty() && weights.empty()) return 0.0;
  const double total = weightSum(values, weights, "weightedAverage");
  return std::inner_product(values.begin(), values.end(), weights.begin(), 0.0) / total;
}

double VectorStatistics::geometricAverage(const std::vector<double>& values) {
  requireNonNegative(values, "geometricAverage");
  // Logarithms keep a long product from overflowing; log(0) = -inf gives the mean 0.
  double logSum = 0.0;
  for (double v : values) logSum += std::log(v);
  return std::exp(logSum / static_cast<double>(values.size()));
}

double VectorStatistics::weightedGeometricAverage(const std::vector<double>& values,
                                                  const std::vector<double>& weights) {
  requireNonNegative(values, "weightedGeometricAverage");
  const double total = weightSum(values, weights, "weightedGeometricAverage");
  double logSum = 0.0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (weights[i] != 0.0) logSum += weights[i] * std::log(values[i]);
  }
  return std::exp(logSum / total);
}

double VectorStatistics::harmonicAverage(const std::vector<double>& values) {
  requireNonNegative(values, "harmonicAverage");
  double inverseSum = 0.0;
  for (double v : values) inverseSum += 1.0 / v;
  return static_cast<double>(values.size()) / inverseSum;
}

double VectorStatistics::weightedHarmonicAverage(const std::vector<double>& values,
                                                 const std::vector<double>& weights) {
  requireNonNegative(values, "weightedHarmonicAverage");
  const double total = weightSum(values, weights, "weightedHarmonicAverage");
  double inverseSum = 0.0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (weights[i] != 0.0) inverseSum += weights[i] / values[i];
  }
  return total / inverseSum;
}

double VectorStatistics::populationVariance(const std::vector<double>& values) {
  requireValues(values, "populationVariance");
  return squaredDeviations(values) / static_cast<double>(values.size());
}

double VectorStatistics::sampleVariance(const std::vector<double>& values) {
  if (values.size() < 2) fail("sampleVariance", "fewer than two values");
  return squaredDeviations(values) / static_cast<double>(values.size() - 1);
}

double VectorStatistics::stdDeviationConsideringSampleVariance(const std::vector<double>& values) {
  return std::sqrt(sampleVariance(values));
}

double VectorStatistics::stdDeviationConsideringPopulationVariance(
    const std::vector<double>& values) {
  return std::sqrt(populationVariance(values));
}

double VectorStatistics::median(const std::vector<double>& values) {
  return medianCalc(values, 0.5);
}

double VectorStatistics::lowerQuartile(const std::vector<double>& values) {
  return medianCalc(values, 0.25);
}

double VectorStatistics::upperQuartile(const std::vector<double>& values) {
  return medianCalc(values, 0.75);
}

double VectorStatistics::medianCalc(const std::vector<double>& values, double fraction) {
  if (values.empty()) throw std::invalid_argument("Invalid vector.");
  if (!(fraction >= 0.0 && fraction <= 1.0)) fail("medianCalc", "fraction outside [0, 1]");
  std::vector<double> sorted(values);
  std::sort(sorted.begin(), sorted.end());
  const double position = static_cast<double>(sorted.size() + 1) * fraction;
  const double whole = std::floor(position);
  // Small samples put the position before the first or after the last value; the ends stand in.
  const auto at = [&sorted](double oneBased) {
    const double last = static_cast<double>(sorted.size() - 1);
    return sorted[static_cast<std::size_t>(std::clamp(oneBased - 1.0, 0.0, last))];
  };
  if (position == whole) return at(whole);
  return (at(whole) + at(whole + 1.0)) / 2.0;
}
