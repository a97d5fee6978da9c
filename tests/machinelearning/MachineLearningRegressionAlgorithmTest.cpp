#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "machinelearning/KNNRegressionAlgorithm.h"
#include "machinelearning/MachineLearningRegressionAlgorithm.h"
#include "machinelearning/RegressionTreeAlgorithm.h"
#include "support/ExpectThrow.h"

namespace {

using Average = MachineLearningRegressionAverageCalculatorType;
using Distance = MachineLearningRegressionDistanceCalculatorType;
using Validation = MachineLearningDatasetIndexesToTest::ValidationStr;

// k nearest neighbours of one attribute x with the arithmetic mean.
KNNRegressionAlgorithm knnOver(const std::vector<std::pair<double, double>>& points, uint32_t k) {
  KNNRegressionAlgorithm knn(1, {"x"}, "y", k, Average::arithmetic, Distance::euclidean);
  for (const auto& [x, y] : points) knn.addEntry({x}, y);
  return knn;
}

// Squares x for x = 1 .. 6.
const std::vector<std::pair<double, double>> kSquares = {{1, 1},  {2, 4},  {3, 9},
                                                         {4, 16}, {5, 25}, {6, 36}};
// 10 and 14 alternating for x = 1 .. 6: two neighbours average the noise out.
const std::vector<std::pair<double, double>> kAlternating = {{1, 10}, {2, 14}, {3, 10},
                                                             {4, 14}, {5, 10}, {6, 14}};
const Validation kHoldoutHalf{{0, 1, 2}, {3, 4, 5}};
const std::vector<Validation> kTwoFolds = {{{3, 4, 5}, {0, 1, 2}}, {{0, 1, 2}, {3, 4, 5}}};

TEST(MachineLearningRegressionAlgorithmTest, HoldoutErrorsByHand) {
  KNNRegressionAlgorithm knn = knnOver(kSquares, 3);
  // One neighbour: x = 4, 5, 6 all take 9 from x = 3: (49 + 256 + 729) / 3; the training points
  // find themselves: 0.
  auto errors = knn.getError({kHoldoutHalf}, 1);
  EXPECT_DOUBLE_EQ(1034.0 / 3.0, errors.first);
  EXPECT_DOUBLE_EQ(0.0, errors.second);
  // Two neighbours: x = 4, 5, 6 take (9 + 4) / 2 = 6.5: (90.25 + 342.25 + 870.25) / 3. On the
  // training side x = 2 is at 1 from both x = 1 and x = 3, and x = 1 comes first in the dataset:
  // (1 - 2.5)^2 + (4 - 2.5)^2 + (9 - 6.5)^2 = 10.75.
  errors = knn.getError({kHoldoutHalf}, 2);
  EXPECT_DOUBLE_EQ(1302.75 / 3.0, errors.first);
  EXPECT_DOUBLE_EQ(10.75 / 3.0, errors.second);
  // The number of entries of the call was only borrowed.
  EXPECT_EQ(3u, knn.getNumberOfEntriesForAverage());
  // Nash-Sutcliffe of the one-neighbour test: observed 16, 25, 36 around their mean 77/3 give
  // 93.44 + 0.44 + 106.78 = 602/3; 1 - 1034 / (602/3).
  knn.setErrorType(MachineLearningRegressionErrorType::nashSutcliffeEfficiency);
  EXPECT_NEAR(1.0 - 1034.0 * 3.0 / 602.0, knn.getError({kHoldoutHalf}, 1).first, 1e-12);
}

TEST(MachineLearningRegressionAlgorithmTest, KFoldErrorsByHand) {
  KNNRegressionAlgorithm knn = knnOver(kSquares, 1);
  // Fold 0 trains on x = 4, 5, 6: x = 1, 2, 3 take 16: (225 + 144 + 49) / 3 = 418 / 3. Fold 1 is
  // the holdout above, 1034 / 3. Mean: (418 + 1034) / 6 = 242.
  const auto errors = knn.getError(kTwoFolds, 1);
  EXPECT_DOUBLE_EQ(242.0, errors.first);
  EXPECT_DOUBLE_EQ(0.0, errors.second);
  EXPECT_EQ(std::make_pair(0.0, 0.0), knn.getError({}, 4));
}

TEST(MachineLearningRegressionAlgorithmTest, MissingTargetsLeftOutOfTheError) {
  // The test target of x = 5 is missing: only (9 vs 16) and (9 vs 36) count, (49 + 729) / 2.
  auto points = kSquares;
  points[4].second = -999.0;
  KNNRegressionAlgorithm knn = knnOver(points, 1);
  EXPECT_DOUBLE_EQ(389.0, knn.getError({kHoldoutHalf}, 1).first);
}

TEST(MachineLearningRegressionAlgorithmTest, BestNumberOfEntriesByHand) {
  // Over the two folds of the alternating values: one neighbour misses by 4 on two of three
  // points, 32/3; two neighbours answer 12, missing by 2 everywhere, 4; three answer 38/3 or
  // 34/3, 16/3. Two wins.
  KNNRegressionAlgorithm knn = knnOver(kAlternating, 5);
  knn.optimizeNumberOfEntriesForAverage(kTwoFolds, 1, 3);
  EXPECT_EQ(2u, knn.getNumberOfEntriesForAverage());
  // A maximum beyond the training sets of 3 entries stops there instead of failing.
  knn.optimizeNumberOfEntriesForAverage(kTwoFolds, 1, 6);
  EXPECT_EQ(2u, knn.getNumberOfEntriesForAverage());
  // Nash-Sutcliffe is minimised too: 1 - 32/(32/3) = -2 for one neighbour is the lowest.
  knn.setErrorType(MachineLearningRegressionErrorType::nashSutcliffeEfficiency);
  knn.optimizeNumberOfEntriesForAverage(kTwoFolds, 1, 3);
  EXPECT_EQ(1u, knn.getNumberOfEntriesForAverage());
  // Without validations nothing changes.
  knn.optimizeNumberOfEntriesForAverage({}, 3, 3);
  EXPECT_EQ(1u, knn.getNumberOfEntriesForAverage());
}

TEST(MachineLearningRegressionAlgorithmTest, HoldoutWithNothingToTrainOnFailsInRun) {
  KNNRegressionAlgorithm knn = knnOver(kSquares, 1);
  EXPECT_THROW_TEXT(knn.getError({Validation{{}, {0, 1, 2, 3, 4, 5}}}, 1), std::runtime_error,
                    "KNNAlgorithm::run(): numberOfEntriesForAverage > DataSet size");
  EXPECT_EQ(1u, knn.getNumberOfEntriesForAverage());
}

TEST(MachineLearningRegressionAlgorithmTest, Failures) {
  EXPECT_THROW_TEXT(
      KNNRegressionAlgorithm(2, {"a"}, "y", 1, Average::arithmetic, Distance::euclidean),
      std::invalid_argument,
      "MachineLearningRegressionAlgorithm(): attributesNames.size() != numberOfAttributes");
  KNNRegressionAlgorithm knn = knnOver(kSquares, 1);
  EXPECT_THROW_TEXT(knn.addEntry({1, 2}, 3), std::invalid_argument,
                    "MachineLearningRegressionAlgorithm::addEntry(): invalid attributes size");
  EXPECT_THROW_TEXT(knn.setAttributesNames({"a", "b"}), std::invalid_argument,
                    "MachineLearningRegressionAlgorithm::setAttributesNames(): "
                    "attributesNames.size() != numberOfAttributes");
  EXPECT_THROW_TEXT(knn.getAttributeName(1), std::out_of_range,
                    "MachineLearningRegressionAlgorithm::getAttributeName(): invalid index");
  EXPECT_THROW_TEXT(knn.configureOptimize(Validation{{0, 6}, {}}), std::out_of_range,
                    "MachineLearningRegressionAlgorithm::configureOptimize(): index outside the "
                    "dataset");
  EXPECT_THROW_TEXT(knn.setAverageCalculatorType(static_cast<Average>(6)), std::invalid_argument,
                    "MachineLearningVocabulary::of(): value outside the vocabulary");
  const std::vector<Validation> short_ = {Validation{{0, 1}, {2}}};
  EXPECT_THROW_TEXT(knn.getError(short_, 1), std::invalid_argument,
                    "MachineLearningRegressionAlgorithm::getError(): invalid datasetIndexes size");
  EXPECT_THROW_TEXT(knn.optimizeNumberOfEntriesForAverage(short_, 1, 2), std::invalid_argument,
                    "MachineLearningRegressionAlgorithm::getError(): vainlid datasetIndexes size");
  const std::string where =
      "MachineLearningRegressionAlgorithm::optimizeNumberOfEntriesForAverage(): ";
  EXPECT_THROW_TEXT(knn.optimizeNumberOfEntriesForAverage(kTwoFolds, 3, 2), std::runtime_error,
                    where + "minNumberOfEntriesForAverage > maxNumberOfEntriesForAverage");
  EXPECT_THROW_TEXT(knn.optimizeNumberOfEntriesForAverage(kTwoFolds, 7, 8), std::runtime_error,
                    where + "minNumberOfEntriesForAverage > DataSet size");
  EXPECT_THROW_TEXT(knn.optimizeNumberOfEntriesForAverage(kTwoFolds, 2, 7), std::runtime_error,
                    where + "maxNumberOfEntriesForAverage > DataSet size");
}

TEST(MachineLearningRegressionAlgorithmTest, ConfigureOptimizeRenumbersTheTrainingEntries) {
  KNNRegressionAlgorithm knn = knnOver(kSquares, 1);
  knn.configureOptimize(Validation{{4, 1}, {0}});
  ASSERT_EQ(2u, knn.getWorkDataset().size());
  EXPECT_EQ(0u, knn.getWorkDataset()[0].index);
  EXPECT_EQ(25.0, knn.getWorkDataset()[0].value);
  EXPECT_EQ(1u, knn.getWorkDataset()[1].index);
  EXPECT_EQ(1.0, knn.getTestDataset()[0].value);
  // runNormal goes back to the whole dataset: x = 3.2 is nearest to x = 3.
  EXPECT_EQ(9.0, knn.runNormal({3.2}));
}

TEST(MachineLearningRegressionAlgorithmTest, CopiesTakeDatasetAndSettings) {
  KNNRegressionAlgorithm knn = knnOver(kSquares, 2);
  knn.setNormalize(true);
  knn.setErrorType(MachineLearningRegressionErrorType::nashSutcliffeEfficiency);
  const auto copy = knn.clone();
  copy->addEntry({7}, 49);
  copy->setNumberOfEntriesForAverage(1);
  EXPECT_EQ(6u, knn.getDataset().size());
  EXPECT_EQ(2u, knn.getNumberOfEntriesForAverage());
  EXPECT_TRUE(dynamic_cast<const KNNRegressionAlgorithm&>(*copy).isNormalize());
  // A tree takes the common part from a neighbours model.
  RegressionTreeAlgorithm tree(0, {}, "", 0, Average::harmonic, Distance::manhattan);
  tree.copyFrom(knn);
  EXPECT_EQ(6u, tree.getDataset().size());
  EXPECT_EQ("x", tree.getAttributeName(0));
  EXPECT_EQ("y", tree.getValueName());
  EXPECT_EQ(Average::arithmetic, tree.getAverageCalculatorType().getType());
  EXPECT_EQ(Distance::euclidean, tree.getDistanceCalculatorType().getType());
  EXPECT_EQ("Nash-Sutcliffe Efficiency", tree.getErrorType().getName());
  EXPECT_EQ("Árvore de regressão", tree.getType().getName());
}

}  // namespace
