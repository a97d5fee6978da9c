#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <stdexcept>
#include <vector>

#include "machinelearning/RegressionRandomForestAlgorithm.h"
#include "machinelearning/StepFunction.h"
#include "support/ExpectThrow.h"

namespace {

using Average = MachineLearningRegressionAverageCalculatorType;
using Distance = MachineLearningRegressionDistanceCalculatorType;
using TreeInfo = RegressionRandomForestAlgorithm::TreeInfo;
using Indexes = std::vector<uint32_t>;

RegressionRandomForestAlgorithm twoVolumes(uint32_t minSplit = 2) {
  return RegressionRandomForestAlgorithm(2, {"Volume A", "Volume B"}, "Vazão liberada", minSplit,
                                         Average::arithmetic, Distance::euclidean);
}

// Every test that draws seeds the forests first and leaves them unseeded.
class RegressionRandomForestAlgorithmTest : public testing::Test {
 protected:
  void TearDown() override { RegressionRandomForestAlgorithm::setSeed(std::nullopt); }
};

TEST_F(RegressionRandomForestAlgorithmTest, SeededDrawsWorkedByHand) {
  // Three rows, one tree of one of two attributes. Seed 7 gives the outputs 337897, 1278240558,
  // 449829614, 518142577, 1665781405, 704006134. The attributes {0, 1}: position 1 swaps with
  // floor(337896 * 2 / 2147483646) = 0, giving {1, 0}, cut to {1}. Three rows drawn below 3:
  // 1, 0, 0. Shuffled: position 2 with floor(1665781404 * 3 / 2147483646) = 2 (stays), position 1
  // with floor(704006133 * 2 / 2147483646) = 0: {0, 1, 0}.
  RegressionRandomForestAlgorithm::setSeed(7);
  RegressionRandomForestAlgorithm forest = twoVolumes();
  forest.setNumberOfTrees(1);
  for (double row : {1.0, 2.0, 3.0}) forest.addEntry({row, 10 * row}, row);
  forest.buildTreesInfo();
  EXPECT_EQ((std::vector<TreeInfo>{{{0, 1, 0}, {1}}}), forest.getVecOfTreeInfo());
  // The next forest of the process draws with seed 8: attributes {1}, rows {2, 2, 0}.
  forest.buildTreesInfo();
  EXPECT_EQ((std::vector<TreeInfo>{{{2, 2, 0}, {1}}}), forest.getVecOfTreeInfo());
  // Seeding again starts over.
  RegressionRandomForestAlgorithm::setSeed(7);
  forest.buildTreesInfo();
  EXPECT_EQ((std::vector<TreeInfo>{{{0, 1, 0}, {1}}}), forest.getVecOfTreeInfo());
}

TEST_F(RegressionRandomForestAlgorithmTest, SameSeedSameForest) {
  const auto draw = [] {
    RegressionRandomForestAlgorithm::setSeed(2024);
    RegressionRandomForestAlgorithm forest = twoVolumes();
    forest.setNumberOfTrees(10);
    forest.setDatasetPercentInTree(80.0);
    addStepPoints(forest);
    forest.buildTreesInfo();
    forest.build();
    return forest;
  };
  RegressionRandomForestAlgorithm first = draw();
  RegressionRandomForestAlgorithm second = draw();
  EXPECT_EQ(first.getVecOfTreeInfo(), second.getVecOfTreeInfo());
  ASSERT_EQ(10u, first.getVecOfTreeInfo().size());
  // trunc(12 * 80 / 100) = 9 rows in each tree, one attribute by default.
  EXPECT_EQ(9u, first.getVecOfTreeInfo()[0].rows.size());
  EXPECT_EQ(1u, first.getVecOfTreeInfo()[0].attributes.size());
  for (double a : {10.0, 45.0, 60.0})
    EXPECT_EQ(first.runNormal({a, 20}), second.runNormal({a, 20}));
}

TEST_F(RegressionRandomForestAlgorithmTest, ChoicesOfRowsAndAttributes) {
  RegressionRandomForestAlgorithm::setSeed(11);
  RegressionRandomForestAlgorithm forest = twoVolumes();
  addStepPoints(forest);
  // More attributes in a tree than there are: all of them, in order.
  forest.setNumberOfAttributesInTree(5);
  // Without replacement at 50 %: six distinct rows of the twelve.
  forest.setReplacement(false);
  forest.setDatasetPercentInTree(50.0);
  forest.setNumberOfTrees(3);
  forest.buildTreesInfo();
  for (const TreeInfo& info : forest.getVecOfTreeInfo()) {
    EXPECT_EQ((Indexes{0, 1}), info.attributes);
    ASSERT_EQ(6u, info.rows.size());
    EXPECT_EQ(6u, std::set<uint32_t>(info.rows.begin(), info.rows.end()).size());
  }
  // With replacement at 100 % a tree of twelve rows repeats some: the twelve draws of seed 11 are
  // not all different.
  forest.setReplacement(true);
  forest.setDatasetPercentInTree(100.0);
  forest.buildTreesInfo();
  const Indexes& rows = forest.getVecOfTreeInfo()[0].rows;
  EXPECT_EQ(12u, rows.size());
  EXPECT_LT(std::set<uint32_t>(rows.begin(), rows.end()).size(), 12u);
}

TEST_F(RegressionRandomForestAlgorithmTest, FitsAStepFunctionOfTwoVolumes) {
  // Trees of both volumes over all twelve rows (no replacement) are the step tree in another row
  // order; the points share no coordinate, so each tree and their mean is that tree.
  RegressionRandomForestAlgorithm::setSeed(5);
  RegressionRandomForestAlgorithm forest = twoVolumes();
  addStepPoints(forest);
  forest.setNumberOfTrees(5);
  forest.setNumberOfAttributesInTree(2);
  forest.setReplacement(false);
  forest.buildTreesInfo();
  forest.build();
  ASSERT_EQ(5u, forest.getVectorOfRegressionTree().size());
  for (const auto& point : stepPoints()) {
    EXPECT_EQ(stepFunction(point[0], point[1]), forest.runNormal(point));
  }
  RegressionTreeAlgorithm tree = stepTree();
  for (double a = 0.0; a <= 100.0; a += 2.5) {
    for (double b = 0.0; b <= 70.0; b += 2.5) {
      ASSERT_EQ(tree.runNormal({a, b}), forest.runNormal({a, b})) << a << ", " << b;
    }
  }
}

TEST_F(RegressionRandomForestAlgorithmTest, AnswerIsTheMeanOfTheTrees) {
  // y = 0, 0, 10, 11 with Volume A = 1 .. 4 and Volume B = 4 .. 1. A tree of Volume A alone
  // answers 11 at Volume A = 4; a tree of Volume B alone cuts at Volume B = 3, so Volume B = 3
  // answers 0. The mean is 5.5.
  RegressionRandomForestAlgorithm forest = twoVolumes(1);
  const double targets[] = {0, 0, 10, 11};
  for (int i = 0; i < 4; ++i) forest.addEntry({i + 1.0, 4.0 - i}, targets[i]);
  forest.setVecOfTreeInfo({{{0, 1, 2, 3}, {0}}, {{0, 1, 2, 3}, {1}}});
  forest.build();
  EXPECT_DOUBLE_EQ(5.5, forest.runNormal({4, 3}));
  EXPECT_EQ("Volume B", forest.getVectorOfRegressionTree()[1]->getAttributeName(0));
  // The least split size is that of the forest, or the rows of the first tree if fewer.
  forest.setNumberOfEntriesForAverage(9);
  forest.build();
  EXPECT_EQ(4u, forest.getVectorOfRegressionTree()[0]->getNumberOfEntriesForAverage());
}

TEST_F(RegressionRandomForestAlgorithmTest, CopiesAreDeep) {
  RegressionRandomForestAlgorithm::setSeed(3);
  RegressionRandomForestAlgorithm forest = twoVolumes();
  addStepPoints(forest);
  forest.setNumberOfAttributesInTree(2);
  forest.setReplacement(false);
  forest.setNumberOfTrees(2);
  forest.buildTreesInfo();
  forest.build();
  const auto copy = forest.clone();
  copy->clearDataset();
  for (const auto& point : stepPoints()) copy->addEntry(point, 1.0);
  copy->build();
  EXPECT_EQ(1.0, copy->runNormal({90, 60}));
  EXPECT_EQ(40.0, forest.runNormal({90, 60}));
  EXPECT_EQ(forest.getVecOfTreeInfo(),
            dynamic_cast<RegressionRandomForestAlgorithm&>(*copy).getVecOfTreeInfo());
  EXPECT_NE(forest.getVectorOfRegressionTree()[0],
            dynamic_cast<RegressionRandomForestAlgorithm&>(*copy).getVectorOfRegressionTree()[0]);
}

TEST_F(RegressionRandomForestAlgorithmTest, Failures) {
  RegressionRandomForestAlgorithm forest = twoVolumes();
  EXPECT_TRUE(std::isnan(forest.runNormal({1, 2})));  // no tree: 0 / 0
  EXPECT_THROW_TEXT(forest.runNormal({1}), std::invalid_argument,
                    "RegressionRandomForestAlgorithm::run(): attributes");
  EXPECT_THROW_TEXT(forest.setNumberOfTrees(0), std::invalid_argument,
                    "RegressionRandomForestAlgorithm::setNumberOfTrees(): numberOfTrees must be "
                    "positive");
  EXPECT_THROW_TEXT(forest.setDatasetPercentInTree(100.5), std::invalid_argument,
                    "RegressionRandomForestAlgorithm::setDatasetPercentInTree(): percent outside "
                    "[0, 100]");
  EXPECT_THROW_TEXT(forest.setVecOfTreeInfo({{{0}, {2}}}), std::out_of_range,
                    "RegressionRandomForestAlgorithm::setVecOfTreeInfo(): attribute outside the "
                    "attributes");
  forest.addEntry({1, 2}, 3);
  forest.setVecOfTreeInfo({{{0, 1}, {0}}});
  EXPECT_THROW_TEXT(forest.build(), std::out_of_range,
                    "RegressionRandomForestAlgorithm::buildTrees(): row outside the dataset");
  EXPECT_THROW_TEXT(forest.runNormal({1, 2}), std::runtime_error,
                    "RegressionRandomForestAlgorithm::run(): trees and vecOfTreeInfo differ");
  EXPECT_EQ("Floresta aleatória de regressão", forest.getType().getName());
}

}  // namespace
