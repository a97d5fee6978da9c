#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/VectorStatistics.h"
#include "support/ExpectThrow.h"

namespace {

using Values = std::vector<double>;

TEST(VectorStatisticsTest, MomentsOfASample) {
  // Sum 40, mean 5; squared deviations 9 1 1 1 0 0 4 16 = 32.
  const Values values{2, 4, 4, 4, 5, 5, 7, 9};
  EXPECT_DOUBLE_EQ(2.0, VectorStatistics::min(values));
  EXPECT_DOUBLE_EQ(9.0, VectorStatistics::max(values));
  EXPECT_DOUBLE_EQ(5.0, VectorStatistics::average(values));
  EXPECT_DOUBLE_EQ(2.0, VectorStatistics::stdDeviationConsideringPopulationVariance(values));
  EXPECT_DOUBLE_EQ(32.0 / 7.0, VectorStatistics::sampleVariance(values));
}

TEST(VectorStatisticsTest, GeometricAndHarmonicMeans) {
  // cbrt(1 * 2 * 4) = 2; 3 / (1 + 1/2 + 1/4) = 3 / 1.75. A value of 0 makes both 0.
  EXPECT_DOUBLE_EQ(2.0, VectorStatistics::geometricAverage({1, 2, 4}));
  EXPECT_DOUBLE_EQ(3.0 / 1.75, VectorStatistics::harmonicAverage({1, 2, 4}));
  EXPECT_EQ(0.0, VectorStatistics::geometricAverage({0, 5}));
  EXPECT_EQ(0.0, VectorStatistics::harmonicAverage({0, 5}));
  // Values {1, 4}, weights {3, 1}: (3 + 4) / 4; exp((3 ln 1 + ln 4) / 4) = 4^(1/4);
  // 4 / (3/1 + 1/4) = 4 / 3.25.
  EXPECT_DOUBLE_EQ(1.75, VectorStatistics::weightedAverage({1, 4}, {3, 1}));
  EXPECT_DOUBLE_EQ(std::sqrt(2.0), VectorStatistics::weightedGeometricAverage({1, 4}, {3, 1}));
  EXPECT_DOUBLE_EQ(4.0 / 3.25, VectorStatistics::weightedHarmonicAverage({1, 4}, {3, 1}));
  // A value of weight 0 takes no part, even a 0 that would zero the product.
  EXPECT_DOUBLE_EQ(4.0, VectorStatistics::weightedGeometricAverage({0, 4}, {0, 1}));
  EXPECT_EQ(0.0, VectorStatistics::weightedAverage({}, {}));
}

TEST(VectorStatisticsTest, MedianCalcAveragesNeighboursWithoutWeighting) {
  struct Case {
    Values values;
    double fraction;
    double expected;
  };
  const Case cases[] = {
      {{1, 2, 3, 4}, 0.5, 2.5},            // p = 2.5: (2 + 3) / 2
      {{1, 2, 3}, 0.5, 2.0},               // p = 2
      {{4, 1, 3, 2}, 0.25, 1.5},           // sorted first; p = 1.25: (1 + 2) / 2
      {{1, 2, 3, 4}, 0.75, 3.5},           // p = 3.75: (3 + 4) / 2, not 3.75
      {{1, 2, 3, 4, 5, 6, 7}, 0.75, 6.0},  // p = 6
      {{5}, 0.25, 5.0},                    // p = 0.5, before the first value
      {{1, 2}, 0.75, 2.0},                 // p = 2.25, after the last value
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.values.size() << " values at " << c.fraction);
    EXPECT_DOUBLE_EQ(c.expected, VectorStatistics::medianCalc(c.values, c.fraction));
  }
  EXPECT_DOUBLE_EQ(1.5, VectorStatistics::lowerQuartile({4, 3, 2, 1}));
  EXPECT_DOUBLE_EQ(3.5, VectorStatistics::upperQuartile({4, 3, 2, 1}));
}

TEST(VectorStatisticsTest, FailureTexts) {
  const std::string prefix = "VectorStatistics::";
  const std::pair<std::function<void()>, std::string> cases[] = {
      {[] { VectorStatistics::median({}); }, "Invalid vector."},
      {[] { VectorStatistics::average({}); }, prefix + "average(): empty vector"},
      {[] { VectorStatistics::sampleVariance({1}); },
       prefix + "sampleVariance(): fewer than two values"},
      {[] {
         VectorStatistics::weightedAverage({1, 2}, {1});
       },
       prefix + "weightedAverage(): values and weights differ in size"},
      {[] { VectorStatistics::weightedAverage({1}, {0}); },
       prefix + "weightedAverage(): weights sum to zero"},
      {[] {
         VectorStatistics::geometricAverage({-1, 2});
       },
       prefix + "geometricAverage(): negative value"},
  };
  for (const auto& [action, text] : cases) {
    SCOPED_TRACE(text);
    EXPECT_THROW_TEXT(action(), std::invalid_argument, text);
  }
}

}  // namespace
