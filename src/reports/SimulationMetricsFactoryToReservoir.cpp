#include "reports/SimulationMetricsFactoryToReservoir.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "reports/ReservoirSimulationMetric.h"

namespace {

using T = SimulationMetricsTypeDefinition;
using Maker = std::function<std::shared_ptr<SimulationMetric>()>;

template <typename Metric>
std::shared_ptr<SimulationMetric> makeMetricOf() {
  return std::make_shared<Metric>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::emptyingFrequency, makeMetricOf<EmptyingFrequencyMetric>},
      {T::frequencyUnderTargetVolumeInPercentage,
       makeMetricOf<FrequencyUnderTargetVolumeSimulationMetric>},
      {T::maxTimeOfEmptying, makeMetricOf<MaxTimeOfEmptyingSimulationMetric>},
      {T::maxTimeUnderTargetVolumeInMonths, makeMetricOf<MaxTimeUnderTargetVolumeSimulationMetric>},
      {T::reliabilityToDemands, makeMetricOf<ReliabilityToDemandsMetric>},
      {T::reliabilityToReservoirs, makeMetricOf<ReliabilityToReservoirsMetric>},
      {T::reliabilityToReservoirsAndDemands, makeMetricOf<ReliabilityToReservoirsAndDemandsMetric>},
      {T::resilienceOfType1, makeMetricOf<ResilienceOfTypeOneMetric>},
      {T::resilienceOfType2, makeMetricOf<ResilienceOfTypeTwoMetric>},
      {T::spillFrequency, makeMetricOf<SpillFrequencyMetric>},
      {T::volumeAccumulatedSpill, makeMetricOf<VolumeAccumulatedSpillMetric>},
      {T::vulnerability, makeMetricOf<VulnerabilityMetric>},
  };
  return mapOfCallbacks;
}

}  // namespace

std::shared_ptr<SimulationMetric> SimulationMetricsFactoryToReservoir::make(
    const SimulationMetricsEnum& kind) {
  auto it = makers().find(kind.getType());
  if (it == makers().end()) {
    throw std::invalid_argument(
        "SimulationMetricsFactoryToReservoir::make(): invalid simulationMetricsEnum");
  }
  return it->second();
}

std::vector<T> SimulationMetricsFactoryToReservoir::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
