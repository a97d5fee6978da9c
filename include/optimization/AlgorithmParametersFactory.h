#pragma once

#include <memory>

#include "optimization/AlgorithmParameters.h"
#include "optimization/OptimizationAlgorithmType.h"

// Makes zeroed parameters for a swarm: MPSOParameters for SMPSO and OMOPSO, PSOParameters for PSO.
// Throws std::invalid_argument "AlgorithmParametersFactory::make(): invalid AlgorithmType" for
// another type.
class AlgorithmParametersFactory {
 public:
  static std::shared_ptr<AlgorithmParameters> make(OptimizationAlgorithmType type);
  static std::shared_ptr<AlgorithmParameters> makeSMPSO();
  static std::shared_ptr<AlgorithmParameters> makeOMOPSO();
  static std::shared_ptr<AlgorithmParameters> makePSO();
};
