#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/NumericalUtils.h"
#include "support/ExpectThrow.h"

namespace {

TEST(NumericalUtilsTest, SubtractDoublesIsExactlyZeroWithinTolerance) {
  // 1.0 - 1.0000005 = -5e-7, within 1e-6: exactly 0.0, not a tiny remainder.
  EXPECT_EQ(0.0, NumericalUtils::subtractDoubles(1.0, 1.0000005, 1e-6));
  EXPECT_EQ(0.0, NumericalUtils::subtractDoubles(1.0000005, 1.0, 1e-6));
  // 1.0 - 1.000002 = -2e-6, beyond the tolerance.
  EXPECT_NEAR(-2e-6, NumericalUtils::subtractDoubles(1.0, 1.000002, 1e-6), 1e-12);
}

TEST(NumericalUtilsTest, CompareDoublesIncludesTheTolerance) {
  // |1.0 - 1.5| = 0.5 is exact in binary, so the boundary itself is tested.
  EXPECT_TRUE(NumericalUtils::compareDoubles(1.0, 1.5, 0.5));
  EXPECT_FALSE(NumericalUtils::compareDoubles(1.0, 1.5, 0.4999));
  EXPECT_TRUE(NumericalUtils::compareLongDoubles(1.0L, 1.5L, 0.5L));
  EXPECT_TRUE(NumericalUtils::isEmpty(-999.0));
  EXPECT_FALSE(NumericalUtils::isEmpty(-999.0000001));
}

TEST(NumericalUtilsTest, IsNumberAcceptsPlainDecimalNotation) {
  for (const char* text : {"12", "-1.5", "+3", ".5", "7.", "1e5", "-2.5E-3", "6e+2"}) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(NumericalUtils::isNumber(text));
  }
  for (const char* text : {"", "-", ".", "e5", "1e", "1.2.3", "12a", " 12", "12 ", "1,5", "nan",
                           "inf", "0x1A", "+-1"}) {
    SCOPED_TRACE(text);
    EXPECT_FALSE(NumericalUtils::isNumber(text));
  }
}

TEST(NumericalUtilsTest, GetDoublePrecisionRoundsHalvesUpward) {
  // 1.2345 * 1000 + 0.5 = 1235.0 -> 1.235.
  EXPECT_NEAR(1.235, NumericalUtils::getDoublePrecision(1.2345, 3), 1e-12);
  // -0.0001 * 1000 + 0.5 = 0.4 -> floor 0.
  EXPECT_EQ(0.0, NumericalUtils::getDoublePrecision(-0.0001, 3));
  EXPECT_EQ(3.0, NumericalUtils::getDoublePrecision(2.5, 0));
  EXPECT_EQ(-2.0, NumericalUtils::getDoublePrecision(-2.5, 0));  // -2.5 + 0.5 = -2
}

TEST(NumericalUtilsTest, GetNearGuaranteeGivesFirstReachableLevel) {
  struct Case {
    double guarantee;
    unsigned int periods;
    double expected;
  };
  const Case cases[] = {
      {90.0, 10, 90.0},         // 9 steps of 10
      {90.0000005, 10, 90.0},   // 90 is within 1e-6 below
      {90.00001, 10, 100.0},    // 90 falls short by 1e-5
      {0.0, 10, 10.0},          // the walk starts at one step
      {90.0, 12, 1100.0 / 12},  // 90 / (100 / 12) = 10.8 -> 11 steps
      {50.0, 3, 200.0 / 3},     // 1.5 steps -> 2
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.guarantee << " over " << c.periods);
    EXPECT_NEAR(c.expected, NumericalUtils::getNearGuarantee(c.guarantee, c.periods), 1e-9);
  }
  EXPECT_THROW_TEXT(NumericalUtils::getNearGuarantee(90.0, 0), std::invalid_argument,
                    "NumericalUtils::getNearGuarantee(): n must be positive");
}

TEST(NumericalUtilsTest, MeanSquaredErrorSkipsMissingPairs) {
  // (1-2)^2 + (2-2)^2 + (3-5)^2 = 5, over 3 pairs.
  EXPECT_NEAR(5.0 / 3.0, NumericalUtils::MeanSquaredError({1, 2, 3}, {2, 2, 5}, false), 1e-12);
  // Only (1, 2) is kept: the other pairs hold -999 (within 1e-6) on one side.
  EXPECT_DOUBLE_EQ(1.0, NumericalUtils::MeanSquaredError({1, -999, 3}, {2, 5, -999.0000005}, true));
  EXPECT_TRUE(std::isnan(NumericalUtils::MeanSquaredError({-999}, {4}, true)));
  EXPECT_THROW_TEXT(NumericalUtils::MeanSquaredError({1, 2}, {1}, false), std::invalid_argument,
                    "NumericalUtils::MeanSquaredError(): vectors differ in size");
}

TEST(NumericalUtilsTest, NashSutcliffeMeasuresAgainstObservedMean) {
  // Observed {1, 2, 3}, mean 2: deviations 1 + 0 + 1 = 2; errors 0 + 0 + 1 = 1 -> 1 - 1/2.
  // Taking {1, 2, 4} as observed instead would give 1 - 9/42.
  EXPECT_DOUBLE_EQ(0.5, NumericalUtils::nashSutcliffeModelEfficiencyCoefficientNSE(
                            {1, 2, 3, -999}, {1, 2, 4, 7}, true));
  EXPECT_DOUBLE_EQ(
      1.0, NumericalUtils::nashSutcliffeModelEfficiencyCoefficientNSE({1, 2, 3}, {1, 2, 3}, false));
}

TEST(NumericalUtilsTest, DistancesOverPairsOfCoordinates) {
  // Vectors (0, 0) and (3, 4): sqrt(9 + 16) = 5 and 3 + 4 = 7.
  const std::vector<Point2D> pairs = NumericalUtils::makeVectorOfPoint2D({0, 0}, {3, 4});
  EXPECT_DOUBLE_EQ(5.0, NumericalUtils::euclideanDistance(pairs));
  EXPECT_DOUBLE_EQ(7.0, NumericalUtils::manhattanDistance(pairs));
  EXPECT_NEAR(180.0, NumericalUtils::radToDegree(std::acos(-1.0)), 1e-12);
  EXPECT_EQ(std::numeric_limits<double>::max(), NumericalUtils::getMaxDouble());
  EXPECT_THROW_TEXT(NumericalUtils::makeVectorOfPoint2D({1}, {}), std::invalid_argument,
                    "NumericalUtils::makeVectorOfPoint2D(): x and y differ in size");
}

TEST(NumericalUtilsTest, RandomDrawsRepeatUnderTheSameSeed) {
  const auto draw = [] {
    NumericalUtils::setRandomSeed(2024);
    return std::vector<double>{NumericalUtils::randomUniformNumber(2.0, 3.0),
                               NumericalUtils::randomUniformNumber(2.0, 3.0),
                               static_cast<double>(NumericalUtils::randomClosedInterval(0, 1000))};
  };
  const std::vector<double> first = draw();
  EXPECT_EQ(first, draw());
  EXPECT_GE(first[0], 2.0);
  EXPECT_LT(first[0], 3.0);
}

TEST(NumericalUtilsTest, RandomClosedIntervalReachesBothEnds) {
  NumericalUtils::setRandomSeed(7);
  std::vector<int> seen(3, 0);
  for (int i = 0; i < 300; ++i) {
    const unsigned int value = NumericalUtils::randomClosedInterval(3, 5);
    ASSERT_GE(value, 3u);
    ASSERT_LE(value, 5u);
    ++seen[value - 3];
  }
  EXPECT_TRUE(std::all_of(seen.begin(), seen.end(), [](int count) { return count > 0; }));
  EXPECT_THROW_TEXT(NumericalUtils::randomClosedInterval(5, 3), std::invalid_argument,
                    "NumericalUtils::randomClosedInterval(): low is above high");
}

TEST(NumericalUtilsTest, MakeVectorOfIndexesShufflesAPermutation) {
  EXPECT_EQ((std::vector<unsigned int>{0, 1, 2, 3}), NumericalUtils::makeVectorOfIndexes(4, false));
  NumericalUtils::setRandomSeed(11);
  std::vector<unsigned int> shuffled = NumericalUtils::makeVectorOfIndexes(50, true);
  std::vector<unsigned int> ordered(50);
  std::iota(ordered.begin(), ordered.end(), 0u);
  EXPECT_NE(ordered, shuffled);
  std::sort(shuffled.begin(), shuffled.end());
  EXPECT_EQ(ordered, shuffled);
}

}  // namespace
