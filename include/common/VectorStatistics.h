#pragma once

#include <vector>

// Descriptive statistics over a list of values. A function that has no meaning for its input
// throws std::invalid_argument with a text "VectorStatistics::<function>(): <reason>", the
// reasons being "empty vector", "values and weights differ in size", "weights sum to zero",
// "negative value", "fewer than two values" and "fraction outside [0, 1]". The median family
// says "Invalid vector." for an empty vector.
class VectorStatistics {
 public:
  // The smallest value; throws on an empty vector.
  static double min(const std::vector<double>& values);
  // The largest value; throws on an empty vector.
  static double max(const std::vector<double>& values);
  // The sum; 0.0 for an empty vector.
  static double sum(const std::vector<double>& values);
  // The arithmetic mean; throws on an empty vector.
  static double average(const std::vector<double>& values);
  // sum(w * v) / sum(w); 0.0 for an empty vector, as nearest-neighbour averaging expects.
  // Throws when the sizes differ or the weights sum to zero.
  static double weightedAverage(const std::vector<double>& values,
                                const std::vector<double>& weights);
  // The n-th root of the product; 0.0 when a value is 0. Throws on an empty vector or a
  // negative value.
  static double geometricAverage(const std::vector<double>& values);
  // exp(sum(w * log v) / sum(w)); values with weight 0 take no part. Throws as
  // geometricAverage() and weightedAverage() do.
  static double weightedGeometricAverage(const std::vector<double>& values,
                                         const std::vector<double>& weights);
  // n / sum(1 / v); 0.0 when a value is 0. Throws on an empty vector or a negative value.
  static double harmonicAverage(const std::vector<double>& values);
  // sum(w) / sum(w / v); values with weight 0 take no part. Throws as weightedGeometricAverage().
  static double weightedHarmonicAverage(const std::vector<double>& values,
                                        const std::vector<double>& weights);
  // sum((v - mean)^2) / n; throws on an empty vector.
  static double populationVariance(const std::vector<double>& values);
  // sum((v - mean)^2) / (n - 1); throws on fewer than two values.
  static double sampleVariance(const std::vector<double>& values);
  // sqrt(sampleVariance()), with its failures.
  static double stdDeviationConsideringSampleVariance(const std::vector<double>& values);
  // sqrt(populationVariance()), with its failures.
  static double stdDeviationConsideringPopulationVariance(const std::vector<double>& values);
  // medianCalc(values, 0.5).
  static double median(const std::vector<double>& values);
  // medianCalc(values, 0.25).
  static double lowerQuartile(const std::vector<double>& values);
  // medianCalc(values, 0.75).
  static double upperQuartile(const std::vector<double>& values);
  // With the values sorted and p = (n + 1) * fraction: the p-th value (counted from 1) when p is
  // whole, otherwise the plain mean of the values on either side of p. Positions before the first
  // or after the last value take that end value. Throws std::invalid_argument "Invalid vector."
  // on an empty vector, or for a fraction outside [0, 1].
  static double medianCalc(const std::vector<double>& values, double fraction);
};
