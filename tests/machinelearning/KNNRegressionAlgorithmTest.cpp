#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <vector>

#include "machinelearning/KNNRegressionAlgorithm.h"
#include "support/ExpectThrow.h"

namespace {

using Average = MachineLearningRegressionAverageCalculatorType;
using Distance = MachineLearningRegressionDistanceCalculatorType;

KNNRegressionAlgorithm twoVolumes(uint32_t k, Average average, Distance distance) {
  return KNNRegressionAlgorithm(2, {"Volume A", "Volume B"}, "Vazão liberada", k, average,
                                distance);
}

TEST(KNNRegressionAlgorithmTest, OneNeighbourReturnsTheTrainingTargets) {
  const std::vector<std::vector<double>> points = {{10, 5}, {20, 1}, {3, 30}, {15, 15}};
  const std::vector<double> targets = {2.5, 7.0, 1.25, 4.0};
  for (const auto& averageRow : MachineLearningVocabulary::averageTypes().getRows()) {
    for (const auto& distanceRow : MachineLearningVocabulary::distanceTypes().getRows()) {
      SCOPED_TRACE(averageRow.getName() + " / " + distanceRow.getName());
      KNNRegressionAlgorithm knn = twoVolumes(1, averageRow.getType(), distanceRow.getType());
      for (std::size_t i = 0; i < points.size(); ++i) knn.addEntry(points[i], targets[i]);
      for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_DOUBLE_EQ(targets[i], knn.runNormal(points[i]));
      }
    }
  }
}

TEST(KNNRegressionAlgorithmTest, NeighboursAveragedByHand) {
  // From x = 2.4 the distances to x = 0, 1, 3, 7 are 2.4, 1.4, 0.6, 4.6: the two nearest are
  // x = 3 (30) and x = 1 (20), and Manhattan agrees with Euclidean in one dimension.
  KNNRegressionAlgorithm knn(1, {"x"}, "y", 2, Average::arithmetic, Distance::manhattan);
  for (const auto& [x, y] :
       std::vector<std::pair<double, double>>{{0, 10}, {1, 20}, {3, 30}, {7, 70}}) {
    knn.addEntry({x}, y);
  }
  EXPECT_DOUBLE_EQ(25.0, knn.runNormal({2.4}));
  ASSERT_EQ(2u, knn.getKDataset().size());
  EXPECT_EQ(30.0, knn.getKDataset()[0].value);
  EXPECT_NEAR(0.6, knn.getKDataset()[0].distance, 1e-12);
  // From x = 2, x = 1 and x = 3 are both at 1: the tie keeps dataset order, x = 1 first, so one
  // neighbour alone answers 20.
  EXPECT_DOUBLE_EQ(25.0, knn.runNormal({2.0}));
  EXPECT_EQ(20.0, knn.getKDataset()[0].value);
  knn.setNumberOfEntriesForAverage(1);
  EXPECT_EQ(20.0, knn.runNormal({2.0}));
}

TEST(KNNRegressionAlgorithmTest, AQueryOnATrainingPointDominatesTheWeightedAverage) {
  // Weights from x = 1: 1/1 for x = 0, 1e7 for x = 1 itself, 1/2 for x = 3:
  // (10 + 20e7 + 30) / (1e7 + 1.5) = 20 + 10 / (1e7 + 1.5).
  KNNRegressionAlgorithm knn(1, {"x"}, "y", 3, Average::weightedArithmetic, Distance::euclidean);
  knn.addEntry({0}, 10);
  knn.addEntry({1}, 20);
  knn.addEntry({3}, 60);
  EXPECT_DOUBLE_EQ(20.0 + 10.0 / (1e7 + 1.5), knn.runNormal({1}));
}

TEST(KNNRegressionAlgorithmTest, NormalisingChangesTheNearestEntry) {
  // Entries A = (0, 100) -> 1 and B = (10, 0) -> 2, query (9, 80). Raw, A is at sqrt(81 + 400)
  // and B at sqrt(1 + 6400): A. Divided by the maxima 10 and 100: A = (0, 1), B = (1, 0),
  // query (0.9, 0.8); A is at sqrt(0.81 + 0.04), B at sqrt(0.01 + 0.64): B.
  KNNRegressionAlgorithm knn = twoVolumes(1, Average::arithmetic, Distance::euclidean);
  knn.addEntry({0, 100}, 1);
  knn.addEntry({10, 0}, 2);
  EXPECT_EQ(1.0, knn.runNormal({9, 80}));
  knn.setNormalize(true);
  EXPECT_TRUE(knn.isNormalize());
  EXPECT_EQ(2.0, knn.runNormal({9, 80}));
  EXPECT_NEAR(std::sqrt(0.65), knn.getKDataset()[0].distance, 1e-12);
  // The neighbours keep their scaled attributes; the dataset and the work dataset do not.
  EXPECT_EQ((std::vector<double>{1.0, 0.0}), knn.getKDataset()[0].attributes);
  EXPECT_EQ((std::vector<double>{10.0, 0.0}), knn.getDataset()[1].attributes);
  EXPECT_EQ(100.0, knn.getWorkDataset()[0].attributes[1]);
  // A query above every stored value becomes 1 at that attribute: (20, 50) -> (1, 0.5), with
  // A = (0, 1) at sqrt(1.25) and B = (0.5, 0) at sqrt(0.5).
  EXPECT_EQ(2.0, knn.runNormal({20, 50}));
  EXPECT_NEAR(std::sqrt(0.5), knn.getKDataset()[0].distance, 1e-12);
  // An attribute that is 0 everywhere stays 0 instead of dividing by 0.
  KNNRegressionAlgorithm flat = twoVolumes(1, Average::arithmetic, Distance::euclidean);
  flat.setNormalize(true);
  flat.addEntry({0, 2}, 5);
  flat.addEntry({0, 4}, 6);
  EXPECT_EQ(6.0, flat.runNormal({0, 3.5}));
  EXPECT_NEAR(0.125, flat.getKDataset()[0].distance, 1e-12);
}

TEST(KNNRegressionAlgorithmTest, Failures) {
  KNNRegressionAlgorithm knn = twoVolumes(3, Average::arithmetic, Distance::euclidean);
  knn.addEntry({1, 1}, 1);
  knn.addEntry({2, 2}, 2);
  EXPECT_THROW_TEXT(knn.runNormal({1}), std::invalid_argument, "KNNAlgorithm::run(): attributes");
  EXPECT_THROW_TEXT(knn.runNormal({1, 2}), std::runtime_error,
                    "KNNAlgorithm::run(): numberOfEntriesForAverage > DataSet size");
  EXPECT_EQ("K vizinhos mais próximos de regressão", knn.getType().getName());
}

}  // namespace
