#include "optimization/AlgorithmParametersFactory.h"

#include <map>
#include <stdexcept>

namespace {

using Maker = std::shared_ptr<AlgorithmParameters> (*)();

const std::map<OptimizationAlgorithmType, Maker>& makers() {
  static const std::map<OptimizationAlgorithmType, Maker> table = {
      {OptimizationAlgorithmType::smpso, AlgorithmParametersFactory::makeSMPSO},
      {OptimizationAlgorithmType::omopso, AlgorithmParametersFactory::makeOMOPSO},
      {OptimizationAlgorithmType::pso, AlgorithmParametersFactory::makePSO},
  };
  return table;
}

}  // namespace

std::shared_ptr<AlgorithmParameters> AlgorithmParametersFactory::make(
    OptimizationAlgorithmType type) {
  const auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument("AlgorithmParametersFactory::make(): invalid AlgorithmType");
  }
  return it->second();
}

std::shared_ptr<AlgorithmParameters> AlgorithmParametersFactory::makeSMPSO() {
  return std::make_shared<MPSOParameters>();
}

std::shared_ptr<AlgorithmParameters> AlgorithmParametersFactory::makeOMOPSO() {
  return makeSMPSO();
}

std::shared_ptr<AlgorithmParameters> AlgorithmParametersFactory::makePSO() {
  return std::make_shared<PSOParameters>();
}
