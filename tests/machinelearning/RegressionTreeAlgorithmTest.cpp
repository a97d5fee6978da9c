#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <vector>

#include "machinelearning/RegressionTreeAlgorithm.h"
#include "machinelearning/StepFunction.h"
#include "support/ExpectThrow.h"

namespace {

using Average = MachineLearningRegressionAverageCalculatorType;
using Distance = MachineLearningRegressionDistanceCalculatorType;
using Indexes = std::vector<uint32_t>;

RegressionTreeAlgorithm oneAttribute(const std::vector<double>& targets, uint32_t minSplit = 1) {
  RegressionTreeAlgorithm tree(1, {"x"}, "y", minSplit, Average::arithmetic, Distance::euclidean);
  for (std::size_t i = 0; i < targets.size(); ++i) {
    tree.addEntry({static_cast<double>(i + 1)}, targets[i]);
  }
  return tree;
}

TEST(RegressionTreeAlgorithmTest, BestCutOfOneAttributeByHand) {
  // y = 0, 0, 10, 11: the cuts cost 0 + 74, 0 + 0.5, 66.7 + 0, and 110.75 with the upper side
  // empty; the second wins, at x = 3.
  RegressionTreeAlgorithm tree = oneAttribute({0, 0, 10, 11});
  tree.build();
  const RegressionTreeNodeInfo info = tree.getBestRegressionTreeNodeInfo({0, 1, 2, 3});
  EXPECT_EQ((Indexes{0, 1}), info.leftIndexes);
  EXPECT_EQ((Indexes{2, 3}), info.rightIndexes);
  EXPECT_DOUBLE_EQ(0.5, info.bestSSR);
  EXPECT_DOUBLE_EQ(5.25, info.average);
  // Around 5.25: 27.5625 + 27.5625 + 22.5625 + 33.0625.
  EXPECT_DOUBLE_EQ(110.75, tree.getTotalSSR(info));
  EXPECT_DOUBLE_EQ(0.0, tree.getLeftSSR(info));
  EXPECT_DOUBLE_EQ(0.5, tree.getRightSSR(info));
  // {10, 11} splits into two pure sides: 1 - 0 / 110.75.
  EXPECT_DOUBLE_EQ(1.0, tree.getImprovement(110.75, {2, 3}));
  // Indexes in any order are sorted by the attribute first.
  const RegressionTreeNodeInfo unordered = tree.getRegressionTreeNodeInfo(0, {3, 1, 2, 0});
  EXPECT_EQ((Indexes{0, 1}), unordered.leftIndexes);
  EXPECT_EQ((Indexes{2, 3}), unordered.rightIndexes);
  EXPECT_TRUE(tree.getRegressionTreeNodeInfo(0, {}).leftIndexes.empty());
}

TEST(RegressionTreeAlgorithmTest, FitsAStepFunctionOfTwoVolumes) {
  RegressionTreeAlgorithm tree = stepTree();
  // The root cuts Volume A between 41 and 55 (the lowest value above), the region below cuts
  // Volume B between 22 and 35; each leaf is then pure.
  const auto& root = tree.getRegressionTree().getRoot();
  ASSERT_TRUE(root && !root->isLeaf());
  EXPECT_EQ(0u, root->getAttribute());
  EXPECT_EQ(55.0, root->getValue());
  EXPECT_EQ(1u, root->getLeft()->getAttribute());
  EXPECT_EQ(35.0, root->getLeft()->getValue());
  EXPECT_EQ(40.0, root->getRight()->getValue());
  EXPECT_EQ(12u, root->getNumberOfEntries());
  EXPECT_EQ(6u, root->getRight()->getNumberOfEntries());
  EXPECT_EQ(3u, tree.getNumberOfLeaves());
  for (const auto& point : stepPoints()) {
    EXPECT_EQ(stepFunction(point[0], point[1]), tree.runNormal(point));
  }
  // Between the points the tree is exact except in the bands between a boundary and the
  // threshold above it (Volume A in [50, 55), Volume B in [30, 35) below Volume A = 50), where it
  // answers the level below the boundary.
  for (double a = 0.0; a <= 100.0; a += 0.5) {
    for (double b = 0.0; b <= 70.0; b += 0.5) {
      const bool inBand = (a >= 50.0 && a < 55.0) || (a < 50.0 && b >= 30.0 && b < 35.0);
      const double expected = inBand ? (b < 35.0 ? 10.0 : 20.0) : stepFunction(a, b);
      ASSERT_EQ(expected, tree.runNormal({a, b})) << a << ", " << b;
    }
  }
}

TEST(RegressionTreeAlgorithmTest, AValueOnTheThresholdGoesRight) {
  RegressionTreeAlgorithm tree = stepTree();
  EXPECT_EQ(40.0, tree.runNormal({55.0, 0.0}));
  EXPECT_EQ(40.0, tree.runNormal({55.0 - 5e-7, 0.0}));  // within 1e-6 of the threshold
  EXPECT_EQ(10.0, tree.runNormal({55.0 - 2e-6, 0.0}));
}

TEST(RegressionTreeAlgorithmTest, RootsThatStayLeaves) {
  struct Case {
    const char* name;
    std::vector<double> targets;
    uint32_t maxLeaves;
    uint32_t maxDepth;
    double expected;
  };
  const Case cases[] = {
      {"all targets equal", {7, 7, 7, 7}, 99999, 99999, 7.0},
      {"one leaf allowed", {0, 0, 10, 11}, 1, 99999, 5.25},
      {"depth 0", {0, 0, 10, 11}, 99999, 0, 5.25},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    RegressionTreeAlgorithm tree = oneAttribute(c.targets);
    tree.setMaxNumberOfLeaves(c.maxLeaves);
    tree.setMaxDepth(c.maxDepth);
    tree.build();
    ASSERT_TRUE(tree.getRegressionTree().getRoot()->isLeaf());
    EXPECT_DOUBLE_EQ(c.expected, tree.runNormal({4}));
  }
  // No attribute at all: one leaf with the average, (1 + 2 + 6) / 3.
  RegressionTreeAlgorithm none(0, {}, "y", 1, Average::arithmetic, Distance::euclidean);
  for (double y : {1.0, 2.0, 6.0}) none.addEntry({}, y);
  none.build();
  EXPECT_DOUBLE_EQ(3.0, none.runNormal({}));
}

TEST(RegressionTreeAlgorithmTest, TheChildThatGainsLessGrowsFirst) {
  // y = 0, 1, 3, 10, 20: the root cuts after x = 3 (cost 4.67 + 50). Its total 278.8; the lower
  // side's own best cut leaves 0.5 (improvement 1 - 0.5 / 278.8), the upper side's 0 (1): the
  // lower side grows first and takes the third leaf, the upper side stays at 15.
  RegressionTreeAlgorithm tree = oneAttribute({0, 1, 3, 10, 20});
  tree.setMaxNumberOfLeaves(3);
  tree.build();
  EXPECT_DOUBLE_EQ(0.5, tree.runNormal({1}));
  EXPECT_DOUBLE_EQ(3.0, tree.runNormal({3}));
  EXPECT_DOUBLE_EQ(15.0, tree.runNormal({5}));
  EXPECT_EQ(3u, tree.getNumberOfLeaves());
  // y = 0, 1, 10, 20: both sides split into pure halves (improvement 1 each); on the tie the
  // upper side grows first.
  RegressionTreeAlgorithm tie = oneAttribute({0, 1, 10, 20});
  tie.setMaxNumberOfLeaves(3);
  tie.build();
  EXPECT_DOUBLE_EQ(0.5, tie.runNormal({2}));
  EXPECT_DOUBLE_EQ(20.0, tie.runNormal({4}));
}

TEST(RegressionTreeAlgorithmTest, ComplexitySearchKeepsOneSplitFewer) {
  // y = 0, 0, 10, 11 around 5.25 (total 110.75). No split: relative error 1. One split (at x = 3):
  // 0.5 / 110.75 = 0.0045, a fall of 0.9955. Two splits: 0, a fall of 0.0045.
  RegressionTreeAlgorithm tree = oneAttribute({0, 0, 10, 11});
  // With cp 0.01 the second split falls short: the tree keeps one, and 10 and 11 share 10.5.
  tree.setCp(0.01);
  tree.build();
  EXPECT_EQ(1, tree.getMaxNumberOfSplits());
  EXPECT_DOUBLE_EQ(10.5, tree.runNormal({4}));
  EXPECT_DOUBLE_EQ(0.0, tree.runNormal({1}));
  // With cp 0.001 it passes; the third try finds nothing more to split (a fall of 0).
  tree.setCp(0.001);
  tree.build();
  EXPECT_EQ(2, tree.getMaxNumberOfSplits());
  EXPECT_DOUBLE_EQ(11.0, tree.runNormal({4}));
  // A negative cp is 0: no search, every split allowed.
  tree.setCp(-3.0);
  EXPECT_EQ(0.0, tree.getCp());
  tree.build();
  EXPECT_EQ(99999, tree.getMaxNumberOfSplits());
  EXPECT_EQ(2, tree.getNumberOfSplits());
}

TEST(RegressionTreeAlgorithmTest, LeastSplitSize) {
  // With 3 as the least size to split, the root of 4 splits into {0, 0} and {10, 11}, which stay
  // leaves.
  RegressionTreeAlgorithm tree = oneAttribute({0, 0, 10, 11}, 3);
  tree.build();
  EXPECT_DOUBLE_EQ(10.5, tree.runNormal({4}));
  // 0 means no tree: the answer is 0.
  tree.setNumberOfEntriesForAverage(0);
  tree.build();
  EXPECT_FALSE(tree.getRegressionTree().getRoot());
  EXPECT_EQ(0.0, tree.runNormal({4}));
}

TEST(RegressionTreeAlgorithmTest, WeightedAveragesRebuildAtEachQuery) {
  // One leaf (depth 0) weighted by 1 / distance: from x = 1, the entries at x = 1, 2, 3 weigh
  // 1e7, 1 and 1/2: (0 + 10 + 20 * 0.5) / (1e7 + 1.5); from x = 3, 1/2, 1 and 1e7.
  RegressionTreeAlgorithm tree = oneAttribute({0, 10, 20});
  tree.setAverageCalculatorType(Average::weightedArithmetic);
  tree.setMaxDepth(0);
  tree.build();
  EXPECT_DOUBLE_EQ(20.0 / (1e7 + 1.5), tree.runNormal({1}));
  EXPECT_DOUBLE_EQ((10.0 + 20e7) / (1e7 + 1.5), tree.runNormal({3}));
}

TEST(RegressionTreeAlgorithmTest, CopiesAreDeep) {
  RegressionTreeAlgorithm tree = oneAttribute({0, 0, 10, 11});
  tree.build();
  const auto copy = tree.clone();
  copy->clearDataset();
  copy->addEntry({1}, 100);
  copy->build();
  EXPECT_EQ(100.0, copy->runNormal({4}));
  EXPECT_EQ(11.0, tree.runNormal({4}));
  RegressionTreeAlgorithm assigned = oneAttribute({5});
  assigned.copyFrom(tree);
  EXPECT_NE(assigned.getRegressionTree().getRoot(), tree.getRegressionTree().getRoot());
  EXPECT_EQ(11.0, assigned.runNormal({4}));
}

TEST(RegressionTreeAlgorithmTest, Failures) {
  RegressionTreeAlgorithm tree = oneAttribute({0, 0, 10, 11}, 5);
  EXPECT_THROW_TEXT(tree.build(), std::runtime_error,
                    "RegressionTreeAlgorithm::buildOptimize(): minSplitValue > DataSet size");
  EXPECT_THROW_TEXT(tree.runNormal({1}), std::runtime_error,
                    "RegressionTreeAlgorithm::run(): minSplitValue > DataSet size");
  EXPECT_THROW_TEXT(tree.runNormal({1, 2}), std::invalid_argument,
                    "RegressionTreeAlgorithm::run(): attributes");
  tree.setNumberOfEntriesForAverage(1);
  EXPECT_THROW_TEXT(tree.runNormal({1}), std::runtime_error,
                    "RegressionTreeAlgorithm::run(): tree not built");
  EXPECT_THROW_TEXT(tree.getRelativeError(), std::runtime_error,
                    "RegressionTreeAlgorithm::getValue(): tree not built");
}

}  // namespace
