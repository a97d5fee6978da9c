#pragma once

#include <cstdint>
#include <vector>

#include "machinelearning/KNNTSPForecastFunctionsFactory.h"
#include "machinelearning/KNNTSPNeighbor.h"
#include "vocabulary/Enum.h"

// Nearest-neighbour forecasting of one series by its own past: the last w values form the
// present window; every earlier window of w values that has a successor is a candidate
// neighbour, at the Euclidean distance between the two windows. The k nearest (earlier windows
// first on equal distances) give the forecast through the chosen forecast function. Several
// steps ahead are forecast one at a time, each forecast appended to the series before the next.
class KNNTSPAlgorithm {
 public:
  using Neighbor = KNNTSPNeighbor;

  // Throws std::invalid_argument "KNNTSPAlgorithm(): k must be positive" and
  // "KNNTSPAlgorithm(): w must be positive", and the factory's failure for an unknown function.
  KNNTSPAlgorithm(std::vector<double> series, uint32_t k, uint32_t w,
                  KNNTSPForecastFunction function);

  // Every candidate window, in the order of the series. Throws std::runtime_error
  // "KNNTSPAlgorithm::makeAllNeighbors(): series shorter than w + 1".
  void makeAllNeighbors();
  // Keeps the k nearest candidates. Throws std::runtime_error "KNNTSPAlgorithm::chooseNeighbors():
  // k > number of neighbors".
  void chooseNeighbors();
  // The forecast of the value after the series: makeAllNeighbors(), chooseNeighbors(), and the
  // forecast function over the chosen neighbours.
  double predictValue();
  // The forecasts of the next intervals values; the series is left as it was.
  std::vector<double> predictValues(uint32_t intervals);

  uint32_t getK() const;
  uint32_t getW() const;
  const std::vector<double>& getSeries() const;
  void setSeries(const std::vector<double>& values);
  const std::vector<Neighbor>& getNeighbors() const;
  const Enum<KNNTSPForecastFunction>& getForecastFunction() const;

 private:
  double windowDistance(std::size_t lastOfWindow) const;

  uint32_t k;
  uint32_t w;
  std::vector<double> series;
  std::vector<Neighbor> neighbors;
  Enum<KNNTSPForecastFunction> forecastFunction;
};
