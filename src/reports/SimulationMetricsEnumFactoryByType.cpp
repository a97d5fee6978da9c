#include "reports/SimulationMetricsEnumFactoryByType.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

using T = SimulationMetricsTypeDefinition;
using Maker = std::function<std::shared_ptr<SimulationMetricsEnum>()>;

template <typename Kind>
std::shared_ptr<SimulationMetricsEnum> makeKind() {
  return std::make_shared<Kind>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::accumulatedVolumeOfDeficits, makeKind<AccumulatedVolumeOfDeficits>},
      {T::averageFlowRateProvided, makeKind<AverageFlowRateProvided>},
      {T::averageFlowRateProvidedAsAPercentageOfRequiredDemand,
       makeKind<AverageFlowRateProvidedAsAPercentageOfRequiredDemand>},
      {T::averageFlowRateProvidedWhenFailsOccur, makeKind<AverageFlowRateProvidedWhenFailsOccur>},
      {T::frequencyUnderNeededDemand, makeKind<FrequencyUnderNeededDemand>},
      {T::maxTimeUnderNeededDemand, makeKind<MaxTimeUnderNeededDemand>},
      {T::minimumFlowProvided, makeKind<MinimumFlowProvided>},
      {T::requiredAverageDemand, makeKind<RequiredAverageDemand>},
      {T::totalTimeThatDemandIsMet, makeKind<TotalTimeThatDemandIsMet>},
      {T::totalTimeUnderNeededDemand, makeKind<TotalTimeUnderNeededDemand>},
      {T::emptyingFrequency, makeKind<EmptyingFrequency>},
      {T::frequencyUnderTargetVolumeInPercentage, makeKind<FrequencyUnderTargetVolumeInPercentage>},
      {T::maxTimeOfEmptying, makeKind<MaxTimeOfEmptying>},
      {T::maxTimeUnderTargetVolumeInMonths, makeKind<MaxTimeUnderTargetVolumeInMonths>},
      {T::reliabilityToDemands, makeKind<ReliabilityToDemands>},
      {T::reliabilityToReservoirs, makeKind<ReliabilityToReservoirs>},
      {T::reliabilityToReservoirsAndDemands, makeKind<ReliabilityToReservoirsAndDemands>},
      {T::resilienceOfType1, makeKind<ResilienceOfType1>},
      {T::resilienceOfType2, makeKind<ResilienceOfType2>},
      {T::spillFrequency, makeKind<SpillFrequency>},
      {T::volumeAccumulatedSpill, makeKind<VolumeAccumulatedSpill>},
      {T::vulnerability, makeKind<Vulnerability>},
  };
  return mapOfCallbacks;
}

}  // namespace

std::shared_ptr<SimulationMetricsEnum> SimulationMetricsEnumFactoryByType::make(T type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument(
        "SimulationMetricsEnumFactoryByType::make(): invalid simulationMetricsType");
  }
  return it->second();
}

std::vector<T> SimulationMetricsEnumFactoryByType::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
