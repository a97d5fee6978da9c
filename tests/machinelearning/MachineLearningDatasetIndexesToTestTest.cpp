#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "common/NumericalUtils.h"
#include "machinelearning/MachineLearningDatasetIndexesToTest.h"
#include "support/ExpectThrow.h"

namespace {

using Splits = MachineLearningDatasetIndexesToTest;
using Indexes = std::vector<uint32_t>;
using Validator = MachineLearningAlgorithmValidatorType;

TEST(MachineLearningDatasetIndexesToTestTest, HoldoutTrainsOnTheFirstShare) {
  struct Case {
    uint32_t size;
    double percent;
    Indexes train;
    Indexes test;
  };
  const Case cases[] = {
      {6, 50.0, {0, 1, 2}, {3, 4, 5}},
      {5, 70.0, {0, 1, 2}, {3, 4}},  // 5 * 70 / 100 = 3.5, truncated
      {5, 0.0, {}, {0, 1, 2, 3, 4}},
      {3, 100.0, {0, 1, 2}, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.size << " at " << c.percent << " %");
    const auto splits = Splits::makeValidationStr(c.size, c.percent, Validator::holdout, false);
    ASSERT_EQ(1u, splits.size());
    EXPECT_EQ(c.train, splits[0].trainIndexes);
    EXPECT_EQ(c.test, splits[0].testIndexes);
  }
}

TEST(MachineLearningDatasetIndexesToTestTest, KFoldTestsConsecutiveFolds) {
  // Size 5 at 60 %: foldSize = 5 - 3 = 2, 5 / 2 = 2 folds; position 4 is left over and always
  // trains.
  const auto five = Splits::makeValidationStr(5, 60.0, Validator::kFoldCrossValidation, false);
  ASSERT_EQ(2u, five.size());
  EXPECT_EQ((Indexes{2, 3, 4}), five[0].trainIndexes);
  EXPECT_EQ((Indexes{0, 1}), five[0].testIndexes);
  EXPECT_EQ((Indexes{0, 1, 4}), five[1].trainIndexes);
  EXPECT_EQ((Indexes{2, 3}), five[1].testIndexes);
  // Size 6 at 50 %: foldSize 3, two folds that swap roles.
  const auto six = Splits::makeKFoldCrossValidationStr(6, 50.0, false);
  ASSERT_EQ(2u, six.size());
  EXPECT_EQ((Indexes{3, 4, 5}), six[0].trainIndexes);
  EXPECT_EQ((Indexes{0, 1, 2}), six[1].trainIndexes);
  // Size 4 at 0 %: foldSize 4, one fold that tests everything.
  const auto all = Splits::makeKFoldCrossValidationStr(4, 0.0, false);
  ASSERT_EQ(1u, all.size());
  EXPECT_EQ((Indexes{0, 1, 2, 3}), all[0].testIndexes);
  EXPECT_TRUE(Splits::makeKFoldCrossValidationStr(0, 50.0, false).empty());
}

TEST(MachineLearningDatasetIndexesToTestTest, ShuffledSplitsFollowTheSeed) {
  // Seed 5489 is the engine's standard seed; its first outputs 3499211612, 581869302 and
  // 3890346734 pick, from the last position down, floor(e * 4 / 2^32) = 3 (no move),
  // floor(e * 3 / 2^32) = 0 (swap positions 2 and 0) and floor(e * 2 / 2^32) = 1 (no move).
  NumericalUtils::setRandomSeed(5489);
  const auto splits = Splits::makeHoldoutValidationStr(4, 50.0, true);
  EXPECT_EQ((Indexes{2, 1}), splits[0].trainIndexes);
  EXPECT_EQ((Indexes{0, 3}), splits[0].testIndexes);
  NumericalUtils::setRandomSeed(5489);
  const auto folds = Splits::makeKFoldCrossValidationStr(4, 50.0, true);
  EXPECT_EQ((Indexes{0, 3}), folds[0].trainIndexes);
  EXPECT_EQ((Indexes{2, 1}), folds[0].testIndexes);
}

TEST(MachineLearningDatasetIndexesToTestTest, Failures) {
  EXPECT_THROW_TEXT(
      Splits::makeValidationStr(5, 50.0, static_cast<Validator>(7), false), std::invalid_argument,
      "MachineLearningDatasetIndexesToTest::makeValidationStr(): invalid validatorType");
  for (double percent : {100.0, 120.0, -1.0}) {
    SCOPED_TRACE(percent);
    EXPECT_THROW_TEXT(Splits::makeKFoldCrossValidationStr(5, percent, false), std::invalid_argument,
                      "MachineLearningDatasetIndexesToTest::makeKFoldCrossValidationStr(): percent "
                      "outside [0, 100)");
  }
  for (double percent : {100.5, -0.5}) {
    SCOPED_TRACE(percent);
    EXPECT_THROW_TEXT(Splits::makeHoldoutValidationStr(5, percent, false), std::invalid_argument,
                      "MachineLearningDatasetIndexesToTest::makeHoldoutValidationStr(): percent "
                      "outside [0, 100]");
  }
}

}  // namespace
