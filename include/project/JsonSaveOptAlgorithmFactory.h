#pragma once

#include <memory>

#include "project/JsonSaveOptAlgorithm.h"

// The writer of a swarm by its type.
class JsonSaveOptAlgorithmFactory {
 public:
  // Throws std::invalid_argument "JsonSaveOptAlgorithmFactory::make: invalid optAlgorithm type"
  // for a swarm without a writer.
  static std::shared_ptr<JsonSaveOptAlgorithm> make(
      const std::shared_ptr<OptimizationAlgorithm>& algorithm);
};
