#include "project/JsonSaveOptAlgorithmFactory.h"

#include <functional>

#include "optimization/OptimizationAlgorithmType.h"
#include "project/JsonMakerTable.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonSaveOptAlgorithm>(
    const std::shared_ptr<OptimizationAlgorithm>&)>;

template <typename Writer>
std::shared_ptr<JsonSaveOptAlgorithm> makeWriter(
    const std::shared_ptr<OptimizationAlgorithm>& algorithm) {
  return std::make_shared<Writer>(algorithm);
}

const JsonMakerTable<Maker, OptimizationAlgorithmType>& makers() {
  using T = OptimizationAlgorithmType;
  static const JsonMakerTable<Maker, T> table(
      {
          {T::smpso, makeWriter<JsonSaveOptMPSO>},
          {T::omopso, makeWriter<JsonSaveOptMPSO>},
          {T::pso, makeWriter<JsonSaveOptPSO>},
      },
      "JsonSaveOptAlgorithmFactory::make: invalid optAlgorithm type");
  return table;
}

}  // namespace

std::shared_ptr<JsonSaveOptAlgorithm> JsonSaveOptAlgorithmFactory::make(
    const std::shared_ptr<OptimizationAlgorithm>& algorithm) {
  return makers().at(algorithm->getType())(algorithm);
}
