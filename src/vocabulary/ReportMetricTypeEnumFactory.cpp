#include "vocabulary/ReportMetricTypeEnumFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

using T = ReportMetricType;
using Maker = std::function<std::shared_ptr<ReportMetricTypeEnum>()>;

template <typename Kind>
std::shared_ptr<ReportMetricTypeEnum> makeKind() {
  return std::make_shared<Kind>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::sumOfReleasesInM3s, makeKind<SumOfReleasesInM3sEnum>},
      {T::sumOfReleasesInHm3, makeKind<SumOfReleasesInHm3Enum>},
      {T::sumOfReleasesInM3, makeKind<SumOfReleasesInM3Enum>},
      {T::sumOfReleasesInL, makeKind<SumOfReleasesInLEnum>},
      {T::averageReleasesInM3s, makeKind<AverageReleasesInM3sEnum>},
      {T::averageReleasesInHm3, makeKind<AverageReleasesInHm3Enum>},
      {T::averageReleasesInM3, makeKind<AverageReleasesInM3Enum>},
      {T::averageReleasesInL, makeKind<AverageReleasesInLEnum>},
      {T::percentOfTimeAboveMinVolume, makeKind<PercentOfTimeAboveMinVolumeEnum>},
      {T::percentOfTimeUnderMinVolume, makeKind<PercentOfTimeUnderMinVolumeEnum>},
      {T::percentOfTimeOfWhenOcurredSpill, makeKind<PercentOfTimeOfWhenOcurredSpillEnum>},
      {T::averagePercentageOfMetDemand, makeKind<AveragePercentageOfMetDemandEnum>},
      {T::totalShortageInHm3, makeKind<TotalShortageInHm3Enum>},
      {T::totalShortageInM3, makeKind<TotalShortageInM3Enum>},
      {T::totalShortageInL, makeKind<TotalShortageInLEnum>},
      {T::averageShortageInHm3, makeKind<AverageShortageInHm3Enum>},
      {T::averageShortageInM3, makeKind<AverageShortageInM3Enum>},
      {T::averageShortageInL, makeKind<AverageShortageInLEnum>},
      {T::nameOfMetricOne, makeKind<NameOfMetricOneEnum>},
      {T::nameOfMetricTwo, makeKind<NameOfMetricTwoEnum>},
      {T::nameOfMetricThree, makeKind<NameOfMetricThreeEnum>},
  };
  return mapOfCallbacks;
}

const std::map<std::string, T>& byName() {
  static const std::map<std::string, T> names = [] {
    std::map<std::string, T> result;
    for (const auto& entry : makers()) result.emplace(entry.second()->getName(), entry.first);
    return result;
  }();
  return names;
}

}  // namespace

std::shared_ptr<ReportMetricTypeEnum> ReportMetricTypeEnumFactory::make(T type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument("ReportMetricTypeEnumFactory::make(): invalid reportMetricType");
  }
  return it->second();
}

std::shared_ptr<ReportMetricTypeEnum> ReportMetricTypeEnumFactory::findByName(
    const std::string& name) {
  auto it = byName().find(name);
  return it == byName().end() ? nullptr : make(it->second);
}

std::vector<T> ReportMetricTypeEnumFactory::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
