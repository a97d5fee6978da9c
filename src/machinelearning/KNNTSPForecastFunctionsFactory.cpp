#include "machinelearning/KNNTSPForecastFunctionsFactory.h"

#include <map>
#include <stdexcept>

#include "common/NumericalUtils.h"

namespace {

using Neighbors = std::vector<KNNTSPNeighbor>;

double successorsMean(const Neighbors& neighbors, const std::vector<double>& series) {
  if (neighbors.empty()) return 0.0;
  double sum = 0.0;
  for (const KNNTSPNeighbor& neighbor : neighbors) sum += series[neighbor.index + 1];
  return sum / static_cast<double>(neighbors.size());
}

double inverseDistanceWeightedMean(const Neighbors& neighbors, const std::vector<double>& series) {
  if (neighbors.empty()) return 0.0;
  // A window equal to the present one all but decides the forecast, as an equal training point
  // does in the weighted averages of the regression models.
  constexpr double kWeightOfAnEqualWindow = 1e7;
  double weighted = 0.0;
  double weights = 0.0;
  for (const KNNTSPNeighbor& neighbor : neighbors) {
    const double weight = NumericalUtils::compareDoubles(neighbor.distance, 0.0, 1e-6)
                              ? kWeightOfAnEqualWindow
                              : 1.0 / neighbor.distance;
    weighted += weight * series[neighbor.index + 1];
    weights += weight;
  }
  return weighted / weights;
}

const std::map<KNNTSPForecastFunction, KNNTSPForecastFunctionsFactory::ForecastFunction>& makers() {
  static const std::map<KNNTSPForecastFunction, KNNTSPForecastFunctionsFactory::ForecastFunction>
      table = {
          {KNNTSPForecastFunction::successorsMean, &successorsMean},
          {KNNTSPForecastFunction::inverseDistanceWeightedMean, &inverseDistanceWeightedMean},
      };
  return table;
}

void requireKnown(KNNTSPForecastFunction type) {
  if (makers().count(type) == 0) {
    throw std::invalid_argument("KNNTSPForecastFunctionsFactory::make(): invalid type");
  }
}

}  // namespace

KNNTSPForecastFunctionsFactory::ForecastFunction KNNTSPForecastFunctionsFactory::make(
    KNNTSPForecastFunction type) {
  requireKnown(type);
  return makers().at(type);
}

const Enum<KNNTSPForecastFunction>& KNNTSPForecastFunctionsFactory::of(
    KNNTSPForecastFunction type) {
  requireKnown(type);
  return functions()[static_cast<std::size_t>(type)];
}

const std::vector<Enum<KNNTSPForecastFunction>>& KNNTSPForecastFunctionsFactory::functions() {
  static const std::vector<Enum<KNNTSPForecastFunction>> names = {
      {KNNTSPForecastFunction::successorsMean, "Média dos sucessores"},
      {KNNTSPForecastFunction::inverseDistanceWeightedMean,
       "Média dos sucessores ponderada pelo inverso da distância"},
  };
  return names;
}
