#include "vocabulary/ReportMetricTypeEnumFactory.h"

#include "vocabulary/KindMakers.h"

namespace {

using T = ReportMetricType;
using Makers = KindMakers<T, ReportMetricTypeEnum>;

const Makers& makers() {
  static const Makers table(
      {
          {T::sumOfReleasesInM3s, Makers::makeKind<SumOfReleasesInM3sEnum>},
          {T::sumOfReleasesInHm3, Makers::makeKind<SumOfReleasesInHm3Enum>},
          {T::sumOfReleasesInM3, Makers::makeKind<SumOfReleasesInM3Enum>},
          {T::sumOfReleasesInL, Makers::makeKind<SumOfReleasesInLEnum>},
          {T::averageReleasesInM3s, Makers::makeKind<AverageReleasesInM3sEnum>},
          {T::averageReleasesInHm3, Makers::makeKind<AverageReleasesInHm3Enum>},
          {T::averageReleasesInM3, Makers::makeKind<AverageReleasesInM3Enum>},
          {T::averageReleasesInL, Makers::makeKind<AverageReleasesInLEnum>},
          {T::percentOfTimeAboveMinVolume, Makers::makeKind<PercentOfTimeAboveMinVolumeEnum>},
          {T::percentOfTimeUnderMinVolume, Makers::makeKind<PercentOfTimeUnderMinVolumeEnum>},
          {T::percentOfTimeOfWhenOcurredSpill,
           Makers::makeKind<PercentOfTimeOfWhenOcurredSpillEnum>},
          {T::averagePercentageOfMetDemand, Makers::makeKind<AveragePercentageOfMetDemandEnum>},
          {T::totalShortageInHm3, Makers::makeKind<TotalShortageInHm3Enum>},
          {T::totalShortageInM3, Makers::makeKind<TotalShortageInM3Enum>},
          {T::totalShortageInL, Makers::makeKind<TotalShortageInLEnum>},
          {T::averageShortageInHm3, Makers::makeKind<AverageShortageInHm3Enum>},
          {T::averageShortageInM3, Makers::makeKind<AverageShortageInM3Enum>},
          {T::averageShortageInL, Makers::makeKind<AverageShortageInLEnum>},
          {T::nameOfMetricOne, Makers::makeKind<NameOfMetricOneEnum>},
          {T::nameOfMetricTwo, Makers::makeKind<NameOfMetricTwoEnum>},
          {T::nameOfMetricThree, Makers::makeKind<NameOfMetricThreeEnum>},
      },
      "ReportMetricTypeEnumFactory::make(): invalid reportMetricType");
  return table;
}

}  // namespace

std::shared_ptr<ReportMetricTypeEnum> ReportMetricTypeEnumFactory::make(T type) {
  return makers().make(type);
}

std::shared_ptr<ReportMetricTypeEnum> ReportMetricTypeEnumFactory::findByName(
    const std::string& name) {
  return makers().findByName(name);
}

std::vector<T> ReportMetricTypeEnumFactory::keys() { return makers().keys(); }
