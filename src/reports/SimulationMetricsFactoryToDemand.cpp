#include "reports/SimulationMetricsFactoryToDemand.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "reports/DemandSimulationMetric.h"

namespace {

using T = SimulationMetricsTypeDefinition;
using Maker = std::function<std::shared_ptr<SimulationMetric>()>;

template <typename Metric>
std::shared_ptr<SimulationMetric> makeMetricOf() {
  return std::make_shared<Metric>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::accumulatedVolumeOfDeficits, makeMetricOf<AccumulatedVolumeOfDeficitsMetric>},
      {T::averageFlowRateProvided, makeMetricOf<AverageFlowRateProvidedMetric>},
      {T::averageFlowRateProvidedAsAPercentageOfRequiredDemand,
       makeMetricOf<AverageFlowRateProvidedAsAPercentageOfDemandMetric>},
      {T::averageFlowRateProvidedWhenFailsOccur,
       makeMetricOf<AverageFlowRateProvidedWhenFailsOccurMetric>},
      {T::frequencyUnderNeededDemand, makeMetricOf<FrequencyUnderNeededDemandMetric>},
      {T::maxTimeUnderNeededDemand, makeMetricOf<MaxTimeUnderNeededDemandMetric>},
      {T::minimumFlowProvided, makeMetricOf<MinimumFlowRateProvidedMetric>},
      {T::requiredAverageDemand, makeMetricOf<RequiredAverageDemandMetric>},
      {T::totalTimeThatDemandIsMet, makeMetricOf<TotalTimeThatDemandIsMetMetric>},
      {T::totalTimeUnderNeededDemand, makeMetricOf<TotalTimeUnderNeededDemandMetric>},
  };
  return mapOfCallbacks;
}

}  // namespace

std::shared_ptr<SimulationMetric> SimulationMetricsFactoryToDemand::make(
    const SimulationMetricsEnum& kind) {
  auto it = makers().find(kind.getType());
  if (it == makers().end()) {
    throw std::invalid_argument(
        "SimulationMetricsFactoryToDemand::make(): invalid simulationMetricsEnum");
  }
  return it->second();
}

std::vector<T> SimulationMetricsFactoryToDemand::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
