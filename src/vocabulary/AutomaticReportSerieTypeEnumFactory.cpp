#include "vocabulary/AutomaticReportSerieTypeEnumFactory.h"

#include "vocabulary/KindMakers.h"

namespace {

using T = SerieOperationType;
using Makers = KindMakers<T, AutomaticReportSerieTypeEnum>;

const Makers& makers() {
  static const Makers table(
      {
          {T::min, Makers::makeKind<MinSerieOperationEnum>},
          {T::max, Makers::makeKind<MaxSerieOperationEnum>},
          {T::sum, Makers::makeKind<SumSerieOperationEnum>},
          {T::average, Makers::makeKind<AverageSerieOperationEnum>},
          {T::variancePopulation, Makers::makeKind<VariancePopulationSerieOperationEnum>},
          {T::varianceSample, Makers::makeKind<VarianceSampleSerieOperationEnum>},
          {T::stdDeviationPopulation, Makers::makeKind<StdDeviationPopulationSerieOperationEnum>},
          {T::stdDeviationSample, Makers::makeKind<StdDeviationSampleSerieOperationEnum>},
      },
      "AutomaticReportSerieTypeEnumFactory::make(): invalid serieOperationType");
  return table;
}

}  // namespace

std::shared_ptr<AutomaticReportSerieTypeEnum> AutomaticReportSerieTypeEnumFactory::make(T type) {
  return makers().make(type);
}

std::shared_ptr<AutomaticReportSerieTypeEnum> AutomaticReportSerieTypeEnumFactory::findByName(
    const std::string& name) {
  return makers().findByName(name);
}

std::vector<T> AutomaticReportSerieTypeEnumFactory::keys() { return makers().keys(); }
