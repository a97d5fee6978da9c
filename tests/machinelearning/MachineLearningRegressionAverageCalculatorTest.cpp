#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <vector>

#include "machinelearning/MachineLearningRegressionAverageCalculator.h"
#include "machinelearning/MachineLearningRegressionDistanceCalculator.h"
#include "support/ExpectThrow.h"

namespace {

using Entry = MachineLearningRegressionDatasetEntry;
using Average = MachineLearningRegressionAverageCalculatorType;

std::vector<Entry> entries(const std::vector<double>& values,
                           const std::vector<double>& distances) {
  std::vector<Entry> made;
  for (std::size_t i = 0; i < values.size(); ++i) {
    made.emplace_back(static_cast<uint32_t>(i), std::vector<double>{}, values[i]);
    made.back().distance = distances[i];
  }
  return made;
}

TEST(MachineLearningRegressionAverageCalculatorTest, SixAveragesByHand) {
  // Values 1, 2, 4 at distances 1, 2, 0.5: weights 1, 0.5, 2, summing to 3.5.
  const std::vector<Entry> picked = entries({1, 2, 4}, {1, 2, 0.5});
  struct Case {
    Average type;
    double expected;
  };
  const Case cases[] = {
      {Average::arithmetic, 7.0 / 3.0},                        // (1 + 2 + 4) / 3
      {Average::geometric, 2.0},                               // cbrt(8)
      {Average::harmonic, 3.0 / 1.75},                         // 3 / (1 + 1/2 + 1/4)
      {Average::weightedArithmetic, 10.0 / 3.5},               // (1 + 1 + 8) / 3.5
      {Average::weightedGeometric, std::pow(2.0, 4.5 / 3.5)},  // (0.5 ln 2 + 2 ln 4) / 3.5
      {Average::weightedHarmonic, 2.0},                        // 3.5 / (1 + 0.5/2 + 2/4)
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(MachineLearningVocabulary::of(c.type).getName());
    EXPECT_NEAR(c.expected, MachineLearningRegressionAverageCalculator::make(c.type, picked),
                1e-12);
    // No entries: 0.0 whatever the average.
    EXPECT_EQ(0.0, MachineLearningRegressionAverageCalculator::make(c.type, {}));
  }
}

TEST(MachineLearningRegressionAverageCalculatorTest, ZeroValuesAndZeroDistances) {
  // A value of 0 makes the geometric and harmonic averages 0, weighted or not.
  const std::vector<Entry> withZero = entries({0, 2, 4}, {1, 1, 1});
  for (Average type : {Average::geometric, Average::harmonic, Average::weightedGeometric,
                       Average::weightedHarmonic}) {
    SCOPED_TRACE(MachineLearningVocabulary::of(type).getName());
    EXPECT_EQ(0.0, MachineLearningRegressionAverageCalculator::make(type, withZero));
  }
  // Distances 0 and 5e-7 both count as 0 and weigh 1e7; the entry at distance 1 weighs 1:
  // (1e7 * 1 + 1e7 * 1 + 1 * 3) / (2e7 + 1).
  const std::vector<Entry> nearQuery = entries({1, 1, 3}, {0.0, 5e-7, 1.0});
  EXPECT_DOUBLE_EQ(1e7, MachineLearningRegressionAverageCalculator::weight(nearQuery[1]));
  EXPECT_DOUBLE_EQ((2e7 + 3.0) / (2e7 + 1.0), MachineLearningRegressionAverageCalculator::make(
                                                  Average::weightedArithmetic, nearQuery));
}

TEST(MachineLearningRegressionAverageCalculatorTest, Failures) {
  EXPECT_THROW_TEXT(MachineLearningRegressionAverageCalculator::make(static_cast<Average>(9), {}),
                    std::invalid_argument,
                    "MachineLearningRegressionAverageCalculator::make(): invalid type");
  const Entry entry(0, {0.0, 0.0}, 1.0);
  EXPECT_THROW_TEXT(
      MachineLearningRegressionDistanceCalculator::make(
          {3, 4}, entry, static_cast<MachineLearningRegressionDistanceCalculatorType>(2)),
      std::invalid_argument, "KNNDistanceCalculator::make(): invalid type");
}

TEST(MachineLearningRegressionAverageCalculatorTest, DistancesOverTheAttributes) {
  // From (1, 2) to (4, 6): sqrt(9 + 16) = 5 and 3 + 4 = 7.
  const Entry entry(0, {1.0, 2.0}, 0.0);
  using Distance = MachineLearningRegressionDistanceCalculatorType;
  EXPECT_DOUBLE_EQ(
      5.0, MachineLearningRegressionDistanceCalculator::make({4, 6}, entry, Distance::euclidean));
  EXPECT_DOUBLE_EQ(
      7.0, MachineLearningRegressionDistanceCalculator::make({4, 6}, entry, Distance::manhattan));
}

}  // namespace
