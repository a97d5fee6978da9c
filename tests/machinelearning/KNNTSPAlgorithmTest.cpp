#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "machinelearning/KNNTSPAlgorithm.h"
#include "support/ExpectThrow.h"

namespace {

using Function = KNNTSPForecastFunction;

TEST(KNNTSPAlgorithmTest, NeighboursOfTheLastWindowByHand) {
  // Series 0, 1, 3, 6, 4 with windows of one value: the present window is (4); the candidates
  // (0), (1), (3), (6) are at 4, 3, 1, 2 and are followed by 1, 3, 6, 4.
  KNNTSPAlgorithm knn({0, 1, 3, 6, 4}, 2, 1, Function::successorsMean);
  knn.makeAllNeighbors();
  ASSERT_EQ(4u, knn.getNeighbors().size());
  EXPECT_EQ(2u, knn.getNeighbors()[2].index);
  EXPECT_DOUBLE_EQ(1.0, knn.getNeighbors()[2].distance);
  knn.chooseNeighbors();
  ASSERT_EQ(2u, knn.getNeighbors().size());
  EXPECT_EQ(2u, knn.getNeighbors()[0].index);
  EXPECT_EQ(3u, knn.getNeighbors()[1].index);
  // The two nearest are followed by 6 and 4: (6 + 4) / 2; weighted by 1/1 and 1/2: 8 / 1.5.
  EXPECT_DOUBLE_EQ(5.0, knn.predictValue());
  KNNTSPAlgorithm weighted({0, 1, 3, 6, 4}, 2, 1, Function::inverseDistanceWeightedMean);
  EXPECT_DOUBLE_EQ(8.0 / 1.5, weighted.predictValue());
}

TEST(KNNTSPAlgorithmTest, SeveralStepsFollowAPeriodicSeries) {
  // 1, 2, 3 repeated, windows of two: (1, 2) recurs at positions 1 and 4, each followed by 3;
  // then (2, 3) is followed by 1, and (3, 1) by 2.
  const std::vector<double> series = {1, 2, 3, 1, 2, 3, 1, 2};
  for (Function function : {Function::successorsMean, Function::inverseDistanceWeightedMean}) {
    SCOPED_TRACE(KNNTSPForecastFunctionsFactory::of(function).getName());
    KNNTSPAlgorithm knn(series, 2, 2, function);
    EXPECT_EQ((std::vector<double>{3, 1, 2}), knn.predictValues(3));
    EXPECT_EQ(series, knn.getSeries());
  }
}

TEST(KNNTSPAlgorithmTest, ForecastFunctionNames) {
  for (const auto& function : KNNTSPForecastFunctionsFactory::functions()) {
    EXPECT_EQ(function, KNNTSPForecastFunctionsFactory::of(function.getType()));
    // No neighbour: 0.0.
    EXPECT_EQ(0.0, KNNTSPForecastFunctionsFactory::make(function.getType())({}, {1, 2}));
  }
  EXPECT_EQ("Média dos sucessores ponderada pelo inverso da distância",
            KNNTSPForecastFunctionsFactory::of(Function::inverseDistanceWeightedMean).getName());
}

TEST(KNNTSPAlgorithmTest, Failures) {
  EXPECT_THROW_TEXT(KNNTSPAlgorithm({1, 2}, 0, 1, Function::successorsMean), std::invalid_argument,
                    "KNNTSPAlgorithm(): k must be positive");
  EXPECT_THROW_TEXT(KNNTSPAlgorithm({1, 2}, 1, 0, Function::successorsMean), std::invalid_argument,
                    "KNNTSPAlgorithm(): w must be positive");
  EXPECT_THROW_TEXT(KNNTSPAlgorithm({1, 2}, 1, 1, static_cast<Function>(5)), std::invalid_argument,
                    "KNNTSPForecastFunctionsFactory::make(): invalid type");
  KNNTSPAlgorithm shortSeries({1, 2}, 1, 2, Function::successorsMean);
  EXPECT_THROW_TEXT(shortSeries.predictValue(), std::runtime_error,
                    "KNNTSPAlgorithm::makeAllNeighbors(): series shorter than w + 1");
  // Series 1, 2, 3 with windows of two has one candidate, (1, 2).
  KNNTSPAlgorithm tooMany({1, 2, 3}, 2, 2, Function::successorsMean);
  EXPECT_THROW_TEXT(tooMany.predictValues(2), std::runtime_error,
                    "KNNTSPAlgorithm::chooseNeighbors(): k > number of neighbors");
  EXPECT_EQ((std::vector<double>{1, 2, 3}), tooMany.getSeries());
}

}  // namespace
