#include "optimization/AlgorithmParameters.h"

void PSOParameters::copyFrom(const std::shared_ptr<AlgorithmParameters>& other) {
  if (const auto pso = std::dynamic_pointer_cast<PSOParameters>(other)) {
    swarmSize = pso->swarmSize;
    maxIterations = pso->maxIterations;
  }
}

void MPSOParameters::copyFrom(const std::shared_ptr<AlgorithmParameters>& other) {
  PSOParameters::copyFrom(other);
  if (const auto mpso = std::dynamic_pointer_cast<MPSOParameters>(other)) {
    archiveSize = mpso->archiveSize;
  }
}
