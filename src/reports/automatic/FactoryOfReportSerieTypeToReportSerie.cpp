#include "reports/automatic/FactoryOfReportSerieTypeToReportSerie.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

using T = SerieOperationType;
using Maker = std::function<std::shared_ptr<AutomaticReportSerie>()>;

template <typename Operation>
std::shared_ptr<AutomaticReportSerie> makeOperation() {
  return std::make_shared<Operation>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::min, makeOperation<AutomaticReportSerieMinValue>},
      {T::max, makeOperation<AutomaticReportSerieMaxValue>},
      {T::sum, makeOperation<AutomaticReportSerieSumValue>},
      {T::average, makeOperation<AutomaticReportSerieAverageValue>},
      {T::variancePopulation, makeOperation<AutomaticReportSerieVariancePopulationValue>},
      {T::varianceSample, makeOperation<AutomaticReportSerieVarianceSampleValue>},
      {T::stdDeviationPopulation, makeOperation<AutomaticReportSerieStdDeviationPopulationValue>},
      {T::stdDeviationSample, makeOperation<AutomaticReportSerieStdDeviationSampleValue>},
  };
  return mapOfCallbacks;
}

}  // namespace

std::shared_ptr<AutomaticReportSerie> FactoryOfReportSerieTypeToReportSerie::make(T type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument(
        "FactoryOfReportSerieTypeToReportSerie::make(): invalid serieOperationType");
  }
  return it->second();
}

std::vector<T> FactoryOfReportSerieTypeToReportSerie::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
