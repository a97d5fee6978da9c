#include "vocabulary/AutomaticReportSerieTypeEnumFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

namespace {

using T = SerieOperationType;
using Maker = std::function<std::shared_ptr<AutomaticReportSerieTypeEnum>()>;

template <typename Kind>
std::shared_ptr<AutomaticReportSerieTypeEnum> makeKind() {
  return std::make_shared<Kind>();
}

const std::map<T, Maker>& makers() {
  static const std::map<T, Maker> mapOfCallbacks = {
      {T::min, makeKind<MinSerieOperationEnum>},
      {T::max, makeKind<MaxSerieOperationEnum>},
      {T::sum, makeKind<SumSerieOperationEnum>},
      {T::average, makeKind<AverageSerieOperationEnum>},
      {T::variancePopulation, makeKind<VariancePopulationSerieOperationEnum>},
      {T::varianceSample, makeKind<VarianceSampleSerieOperationEnum>},
      {T::stdDeviationPopulation, makeKind<StdDeviationPopulationSerieOperationEnum>},
      {T::stdDeviationSample, makeKind<StdDeviationSampleSerieOperationEnum>},
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

std::shared_ptr<AutomaticReportSerieTypeEnum> AutomaticReportSerieTypeEnumFactory::make(T type) {
  auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument(
        "AutomaticReportSerieTypeEnumFactory::make(): invalid serieOperationType");
  }
  return it->second();
}

std::shared_ptr<AutomaticReportSerieTypeEnum> AutomaticReportSerieTypeEnumFactory::findByName(
    const std::string& name) {
  auto it = byName().find(name);
  return it == byName().end() ? nullptr : make(it->second);
}

std::vector<T> AutomaticReportSerieTypeEnumFactory::keys() {
  std::vector<T> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}
