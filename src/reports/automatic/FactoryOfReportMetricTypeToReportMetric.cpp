#include "reports/automatic/FactoryOfReportMetricTypeToReportMetric.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

using T = ReportMetricType;
using Maker = std::function<std::shared_ptr<AutomaticReportMetric>()>;

template <typename Metric>
std::shared_ptr<AutomaticReportMetric> makeMetric() {
  return std::make_shared<Metric>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::sumOfReleasesInM3s, makeMetric<SumOfReleasesInM3s>},
      {T::sumOfReleasesInHm3, makeMetric<SumOfReleasesInHm3>},
      {T::sumOfReleasesInM3, makeMetric<SumOfReleasesInM3>},
      {T::sumOfReleasesInL, makeMetric<SumOfReleasesInL>},
      {T::averageReleasesInM3s, makeMetric<AverageReleasesInM3s>},
      {T::averageReleasesInHm3, makeMetric<AverageReleasesInHm3>},
      {T::averageReleasesInM3, makeMetric<AverageReleasesInM3>},
      {T::averageReleasesInL, makeMetric<AverageReleasesInL>},
      {T::percentOfTimeAboveMinVolume, makeMetric<PercentOfTimeAboveMinVolume>},
      {T::percentOfTimeUnderMinVolume, makeMetric<PercentOfTimeUnderMinVolume>},
      {T::percentOfTimeOfWhenOcurredSpill, makeMetric<PercentOfTimeOfWhenOcurredSpill>},
      {T::averagePercentageOfMetDemand, makeMetric<AveragePercentageOfMetDemand>},
      {T::totalShortageInHm3, makeMetric<TotalShortageInHm3>},
      {T::totalShortageInM3, makeMetric<TotalShortageInM3>},
      {T::totalShortageInL, makeMetric<TotalShortageInL>},
      {T::averageShortageInHm3, makeMetric<AverageShortageInHm3>},
      {T::averageShortageInM3, makeMetric<AverageShortageInM3>},
      {T::averageShortageInL, makeMetric<AverageShortageInL>},
  };
  return mapOfCallbacks;
}

}  // namespace

std::shared_ptr<AutomaticReportMetric> FactoryOfReportMetricTypeToReportMetric::make(T type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument(
        "FactoryOfReportMetricTypeToReportMetric::make(): invalid reportMetricType");
  }
  return it->second();
}

std::vector<T> FactoryOfReportMetricTypeToReportMetric::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
