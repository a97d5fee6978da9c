#include "machinelearning/KNNTSPAlgorithm.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

KNNTSPAlgorithm::KNNTSPAlgorithm(std::vector<double> series, uint32_t k, uint32_t w,
                                 KNNTSPForecastFunction function)
    : k(k),
      w(w),
      series(std::move(series)),
      forecastFunction(KNNTSPForecastFunctionsFactory::of(function)) {
  if (k == 0) throw std::invalid_argument("KNNTSPAlgorithm(): k must be positive");
  if (w == 0) throw std::invalid_argument("KNNTSPAlgorithm(): w must be positive");
}

void KNNTSPAlgorithm::makeAllNeighbors() {
  if (series.size() < static_cast<std::size_t>(w) + 1) {
    throw std::runtime_error("KNNTSPAlgorithm::makeAllNeighbors(): series shorter than w + 1");
  }
  neighbors.clear();
  // A candidate window must end before the last value, which it would otherwise have to foretell.
  for (std::size_t last = w - 1; last + 1 < series.size(); ++last) {
    neighbors.push_back({static_cast<uint32_t>(last), windowDistance(last)});
  }
}

void KNNTSPAlgorithm::chooseNeighbors() {
  if (k > neighbors.size()) {
    throw std::runtime_error("KNNTSPAlgorithm::chooseNeighbors(): k > number of neighbors");
  }
  std::stable_sort(neighbors.begin(), neighbors.end(),
                   [](const Neighbor& a, const Neighbor& b) { return a.distance < b.distance; });
  neighbors.resize(k);
}

double KNNTSPAlgorithm::predictValue() {
  makeAllNeighbors();
  chooseNeighbors();
  return KNNTSPForecastFunctionsFactory::make(forecastFunction.getType())(neighbors, series);
}

std::vector<double> KNNTSPAlgorithm::predictValues(uint32_t intervals) {
  const std::vector<double> original = series;
  std::vector<double> forecasts;
  try {
    for (uint32_t step = 0; step < intervals; ++step) {
      forecasts.push_back(predictValue());
      series.push_back(forecasts.back());
    }
  } catch (...) {
    series = original;
    throw;
  }
  series = original;
  return forecasts;
}

uint32_t KNNTSPAlgorithm::getK() const { return k; }

uint32_t KNNTSPAlgorithm::getW() const { return w; }

const std::vector<double>& KNNTSPAlgorithm::getSeries() const { return series; }

void KNNTSPAlgorithm::setSeries(const std::vector<double>& values) {
  series = values;
  neighbors.clear();
}

const std::vector<KNNTSPAlgorithm::Neighbor>& KNNTSPAlgorithm::getNeighbors() const {
  return neighbors;
}

const Enum<KNNTSPForecastFunction>& KNNTSPAlgorithm::getForecastFunction() const {
  return forecastFunction;
}

double KNNTSPAlgorithm::windowDistance(std::size_t lastOfWindow) const {
  const std::size_t present = series.size() - 1;
  double sum = 0.0;
  for (std::size_t i = 0; i < w; ++i) {
    const double d = series[lastOfWindow - i] - series[present - i];
    sum += d * d;
  }
  return std::sqrt(sum);
}
