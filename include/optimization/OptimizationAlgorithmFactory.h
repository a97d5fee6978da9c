#pragma once

#include <memory>

#include "optimization/OptimizationAlgorithm.h"

// Makes a swarm over a new problem, not yet initialised. Throws std::invalid_argument
// "OptimizationAlgorithmFactory::make(): invalid AlgorithmType" for another type.
class OptimizationAlgorithmFactory {
 public:
  using Parameters = std::shared_ptr<AlgorithmParameters>;

  static std::shared_ptr<OptimizationAlgorithm> make(OptimizationAlgorithmType type,
                                                     const Parameters& parameters,
                                                     const KOVARuleMetalParameters& metal);
  static std::shared_ptr<OptimizationAlgorithm> makeSMPSO(const Parameters& parameters,
                                                          const KOVARuleMetalParameters& metal);
  static std::shared_ptr<OptimizationAlgorithm> makeOMOPSO(const Parameters& parameters,
                                                           const KOVARuleMetalParameters& metal);
  static std::shared_ptr<OptimizationAlgorithm> makePSO(const Parameters& parameters,
                                                        const KOVARuleMetalParameters& metal);
};
