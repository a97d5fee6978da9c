#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <vector>

#include "common/NumericalUtils.h"
#include "support/ExpectThrow.h"

namespace {

TEST(NumericalUtilsTest, TolerantComparisons) {
  // 1.0 - 1.0000005 = -5e-7, within 1e-6: exactly 0.0, not a tiny remainder.
  EXPECT_EQ(0.0, NumericalUtils::subtractDoubles(1.0, 1.0000005, 1e-6));
  // 1.0 - 1.000002 = -2e-6, beyond the tolerance.
  EXPECT_NEAR(-2e-6, NumericalUtils::subtractDoubles(1.0, 1.000002, 1e-6), 1e-12);
  // |1.0 - 1.5| = 0.5 is exact in binary, so the boundary itself counts as equal.
  EXPECT_TRUE(NumericalUtils::compareDoubles(1.0, 1.5, 0.5));
  EXPECT_FALSE(NumericalUtils::compareDoubles(1.0, 1.5, 0.4999));
  EXPECT_FALSE(NumericalUtils::isEmpty(-999.0000001));
}

TEST(NumericalUtilsTest, IsNumberAcceptsPlainDecimalNotation) {
  for (const char* text : {"12", "-1.5", "+3", ".5", "7.", "1e5", "-2.5E-3", "6e+2"}) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(NumericalUtils::isNumber(text));
  }
  for (const char* text : {"", "-", ".", "e5", "1e", "1.2.3", "12a", " 12", "1,5", "nan", "+-1"}) {
    SCOPED_TRACE(text);
    EXPECT_FALSE(NumericalUtils::isNumber(text));
  }
}

TEST(NumericalUtilsTest, GetDoublePrecisionRoundsHalvesUpward) {
  // 1.2345 * 1000 + 0.5 = 1235.0 -> 1.235; -0.0001 * 1000 + 0.5 = 0.4 -> 0.
  EXPECT_NEAR(1.235, NumericalUtils::getDoublePrecision(1.2345, 3), 1e-12);
  EXPECT_EQ(0.0, NumericalUtils::getDoublePrecision(-0.0001, 3));
  EXPECT_EQ(-2.0, NumericalUtils::getDoublePrecision(-2.5, 0));  // -2.5 + 0.5 = -2
}

TEST(NumericalUtilsTest, GetNearGuaranteeGivesFirstReachableLevel) {
  struct Case {
    double guarantee;
    unsigned int periods;
    double expected;
  };
  const Case cases[] = {
      {90.0000005, 10, 90.0},   // 90 is within 1e-6 below
      {90.00001, 10, 100.0},    // 90 falls short by 1e-5
      {0.0, 10, 10.0},          // the walk starts at one step
      {90.0, 12, 1100.0 / 12},  // 90 / (100 / 12) = 10.8 -> 11 steps
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.guarantee << " over " << c.periods);
    EXPECT_NEAR(c.expected, NumericalUtils::getNearGuarantee(c.guarantee, c.periods), 1e-9);
  }
  EXPECT_THROW_TEXT(NumericalUtils::getNearGuarantee(90.0, 0), std::invalid_argument,
                    "NumericalUtils::getNearGuarantee(): n must be positive");
}

TEST(NumericalUtilsTest, ErrorMeasuresSkipMissingPairs) {
  // (1-2)^2 + (2-2)^2 + (3-5)^2 = 5, over 3 pairs.
  EXPECT_NEAR(5.0 / 3.0, NumericalUtils::MeanSquaredError({1, 2, 3}, {2, 2, 5}, false), 1e-12);
  // Only (1, 2) is kept: the other pairs hold -999 (within 1e-6) on one side.
  EXPECT_EQ(1.0, NumericalUtils::MeanSquaredError({1, -999, 3}, {2, 5, -999.0000005}, true));
  EXPECT_TRUE(std::isnan(NumericalUtils::MeanSquaredError({-999}, {4}, true)));
  // Observed {1, 2, 3}, mean 2: deviations 1 + 0 + 1 = 2; errors 0 + 0 + 1 = 1 -> 1 - 1/2.
  // Taking {1, 2, 4} as observed instead would give 1 - 9/42.
  EXPECT_DOUBLE_EQ(0.5, NumericalUtils::nashSutcliffeModelEfficiencyCoefficientNSE(
                            {1, 2, 3, -999}, {1, 2, 4, 7}, true));
  EXPECT_THROW_TEXT(NumericalUtils::MeanSquaredError({1, 2}, {1}, false), std::invalid_argument,
                    "NumericalUtils::MeanSquaredError(): vectors differ in size");
}

TEST(NumericalUtilsTest, DistancesOverPairsOfCoordinates) {
  // Vectors (0, 0) and (3, 4): sqrt(9 + 16) = 5 and 3 + 4 = 7.
  const std::vector<Point2D> pairs = NumericalUtils::makeVectorOfPoint2D({0, 0}, {3, 4});
  EXPECT_DOUBLE_EQ(5.0, NumericalUtils::euclideanDistance(pairs));
  EXPECT_DOUBLE_EQ(7.0, NumericalUtils::manhattanDistance(pairs));
}

TEST(NumericalUtilsTest, RandomDrawsRepeatUnderTheSameSeed) {
  const auto draw = [] {
    NumericalUtils::setRandomSeed(2024);
    std::vector<unsigned int> drawn = NumericalUtils::makeVectorOfIndexes(50, true);
    for (int i = 0; i < 300; ++i) drawn.push_back(NumericalUtils::randomClosedInterval(3, 5));
    return drawn;
  };
  const std::vector<unsigned int> drawn = draw();
  EXPECT_EQ(drawn, draw());
  // A true shuffle of 0..49, then draws that reach both ends of [3, 5] and nothing beyond.
  std::vector<unsigned int> shuffled(drawn.begin(), drawn.begin() + 50);
  const std::vector<unsigned int> ordered = NumericalUtils::makeVectorOfIndexes(50, false);
  EXPECT_NE(ordered, shuffled);
  std::sort(shuffled.begin(), shuffled.end());
  EXPECT_EQ(ordered, shuffled);
  const auto [low, high] = std::minmax_element(drawn.begin() + 50, drawn.end());
  EXPECT_EQ(3u, *low);
  EXPECT_EQ(5u, *high);
  const double uniform = NumericalUtils::randomUniformNumber(2.0, 3.0);
  EXPECT_TRUE(uniform >= 2.0 && uniform < 3.0) << uniform;
}

TEST(NumericalUtilsTest, ShuffleIsFisherYatesFromTheLastPosition) {
  // Under the engine's standard seed 5489 the first outputs are 3499211612, 581869302 and
  // 3890346734. Position 3 swaps with floor(3499211612 * 4 / 2^32) = 3, position 2 with
  // floor(581869302 * 3 / 2^32) = 0, position 1 with floor(3890346734 * 2 / 2^32) = 1.
  NumericalUtils::setRandomSeed(5489);
  EXPECT_EQ((std::vector<unsigned int>{2, 1, 0, 3}), NumericalUtils::makeVectorOfIndexes(4, true));
}

}  // namespace
