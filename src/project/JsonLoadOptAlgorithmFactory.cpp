#include "project/JsonLoadOptAlgorithmFactory.h"

#include <functional>

#include "project/JsonMakerTable.h"

namespace {

using Maker = std::function<std::shared_ptr<JsonLoadOptAlgorithm>()>;

template <typename Reader>
std::shared_ptr<JsonLoadOptAlgorithm> makeReader() {
  return std::make_shared<Reader>();
}

const JsonMakerTable<Maker, OptimizationAlgorithmType>& makers() {
  using T = OptimizationAlgorithmType;
  static const JsonMakerTable<Maker, T> table(
      {
          {T::smpso, makeReader<JsonLoadOptMPSO>},
          {T::omopso, makeReader<JsonLoadOptMPSO>},
          {T::pso, makeReader<JsonLoadOptPSO>},
      },
      "JsonLoadOptAlgorithmFactory::make: invalid algorithm type");
  return table;
}

}  // namespace

std::shared_ptr<JsonLoadOptAlgorithm> JsonLoadOptAlgorithmFactory::make(
    OptimizationAlgorithmType type) {
  return makers().at(type)();
}
