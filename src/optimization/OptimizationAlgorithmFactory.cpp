#include "optimization/OptimizationAlgorithmFactory.h"

#include <map>
#include <stdexcept>

namespace {

using Maker = std::shared_ptr<OptimizationAlgorithm> (*)(
    const OptimizationAlgorithmFactory::Parameters&, const KOVARuleMetalParameters&);

const std::map<OptimizationAlgorithmType, Maker>& makers() {
  static const std::map<OptimizationAlgorithmType, Maker> table = {
      {OptimizationAlgorithmType::smpso, OptimizationAlgorithmFactory::makeSMPSO},
      {OptimizationAlgorithmType::omopso, OptimizationAlgorithmFactory::makeOMOPSO},
      {OptimizationAlgorithmType::pso, OptimizationAlgorithmFactory::makePSO},
  };
  return table;
}

}  // namespace

std::shared_ptr<OptimizationAlgorithm> OptimizationAlgorithmFactory::make(
    OptimizationAlgorithmType type, const Parameters& parameters,
    const KOVARuleMetalParameters& metal) {
  const auto it = makers().find(type);
  if (it == makers().end()) {
    throw std::invalid_argument("OptimizationAlgorithmFactory::make(): invalid AlgorithmType");
  }
  return it->second(parameters, metal);
}

std::shared_ptr<OptimizationAlgorithm> OptimizationAlgorithmFactory::makeSMPSO(
    const Parameters& parameters, const KOVARuleMetalParameters& metal) {
  return std::make_shared<SMPSOAlgorithm>(parameters, metal);
}

std::shared_ptr<OptimizationAlgorithm> OptimizationAlgorithmFactory::makeOMOPSO(
    const Parameters& parameters, const KOVARuleMetalParameters& metal) {
  return std::make_shared<OMOPSOAlgorithm>(parameters, metal);
}

std::shared_ptr<OptimizationAlgorithm> OptimizationAlgorithmFactory::makePSO(
    const Parameters& parameters, const KOVARuleMetalParameters& metal) {
  return std::make_shared<PSOAlgorithm>(parameters, metal);
}
