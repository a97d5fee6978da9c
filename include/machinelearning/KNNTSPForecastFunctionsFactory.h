#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "machinelearning/KNNTSPNeighbor.h"
#include "vocabulary/Enum.h"

// How the next value of a series is told from the values that followed its nearest windows.
enum class KNNTSPForecastFunction : int32_t {
  // "Média dos sucessores": the plain mean of the successors.
  successorsMean = 0,
  // "Média dos sucessores ponderada pelo inverso da distância": each successor weighs 1 / distance
  // of its window, 1e7 for a window equal to the last one (within 1e-6), as the weighted averages
  // of the regression models do.
  inverseDistanceWeightedMean = 1,
};

// The forecast functions of KNNTSPAlgorithm, by type.
class KNNTSPForecastFunctionsFactory {
 public:
  // The forecast from the neighbours (their windows ending at neighbor.index) of the series.
  // Every function gives 0.0 for no neighbour.
  using ForecastFunction =
      std::function<double(const std::vector<KNNTSPNeighbor>&, const std::vector<double>&)>;

  // Throws std::invalid_argument "KNNTSPForecastFunctionsFactory::make(): invalid type".
  static ForecastFunction make(KNNTSPForecastFunction type);
  // The type with its display name; the failure of make() for an unknown type.
  static const Enum<KNNTSPForecastFunction>& of(KNNTSPForecastFunction type);
  // Every type with its display name, in the order of the enumeration.
  static const std::vector<Enum<KNNTSPForecastFunction>>& functions();
};
