#pragma once

#include <memory>

#include "optimization/OptimizationAlgorithmType.h"
#include "project/JsonLoadOptAlgorithm.h"

// The reader of the parameters of a swarm by its type.
class JsonLoadOptAlgorithmFactory {
 public:
  // Throws std::invalid_argument "JsonLoadOptAlgorithmFactory::make: invalid algorithm type" for
  // a type without a reader.
  static std::shared_ptr<JsonLoadOptAlgorithm> make(OptimizationAlgorithmType type);
};
