#include "core/SeriesContainers.h"

#include "vocabulary/Vocabulary.h"

namespace {

// Each kind with the unit it is created with, in the order the kinds are listed.
std::vector<SerieDescription> describe(std::initializer_list<SerieType> types) {
  std::vector<SerieDescription> result;
  result.reserve(types.size());
  for (SerieType type : types) result.push_back({type, Vocabulary::unitOf(type)});
  return result;
}

}  // namespace

using S = SerieType;

const std::vector<SerieDescription>& ReservoirSeriesInput::descriptions() {
  static const auto list = describe(
      {S::precipitation, S::evaporation, S::naturalIncrementalFlow, S::targetVolume});
  return list;
}

const std::vector<SerieDescription>& DemandSeriesInput::descriptions() {
  static const auto list = describe({S::demand, S::naturalIncrementalFlow});
  return list;
}

const std::vector<SerieDescription>& LinkSeriesInput::descriptions() {
  static const auto list = describe({S::transitLossPercentage, S::linkLimit});
  return list;
}

const std::vector<SerieDescription>& JunctionSeriesInput::descriptions() {
  static const auto list = describe({S::naturalIncrementalFlow});
  return list;
}

const std::vector<SerieDescription>& BasinSeriesInput::descriptions() {
  static const auto list = describe({S::naturalIncrementalFlow});
  return list;
}

const std::vector<SerieDescription>& ReservoirSeriesOutput::descriptions() {
  static const auto list = describe(
      {S::initialVolume, S::finalVolume, S::upstreamControlledFlow, S::outflow,
       S::upstreamUncontrolledVolume, S::upstreamUncontrolledFlow, S::upstreamControlledVolume,
       S::outflowVolume, S::precipitatedVolume, S::evaporatedVolume, S::level, S::area,
       S::releasedFlow, S::releasedVolume, S::spilledFlow, S::spilledVolume, S::priority,
       S::targetVolume});
  return list;
}

const std::vector<SerieDescription>& DemandSeriesOutput::descriptions() {
  static const auto list = describe(
      {S::inflow, S::attendedDemand, S::attendedDemandPercentage, S::attendedDemandVolume,
       S::supplyShortage, S::supplyShortageVolume, S::targetDemand, S::targetDemandVolume,
       S::supplyFailure, S::outflow, S::supplyExcess, S::supplyExcessVolume, S::consumedDemand,
       S::consumedDemandVolume, S::priority});
  return list;
}

const std::vector<SerieDescription>& LinkSeriesOutput::descriptions() {
  static const auto list =
      describe({S::inflow, S::transitLoss, S::outflow, S::pumpingCost, S::linkSense});
  return list;
}

const std::vector<SerieDescription>& JunctionSeriesOutput::descriptions() {
  static const auto list = describe({S::outflow, S::inflow});
  return list;
}

const std::vector<SerieDescription>& BasinSeriesOutput::descriptions() {
  static const auto list = describe({S::outflow, S::inflow});
  return list;
}
