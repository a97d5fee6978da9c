#include "project/JsonSaveOptAlgorithm.h"

#include "optimization/AlgorithmParameters.h"
#include "optimization/OptimizationAlgorithmType.h"

using B = JsonSaveBuilder;

JsonSaveOptAlgorithm::JsonSaveOptAlgorithm(std::shared_ptr<OptimizationAlgorithm> algorithm)
    : algorithm(std::move(algorithm)) {}

std::string JsonSaveOptAlgorithm::toJson() const {
  return B::makeObject({B::makeJsonKeyValueString(
                            "type", OptimizationAlgorithmTypeNames::nameOf(algorithm->getType())),
                        toJsonSpecific()});
}

std::string JsonSaveOptPSO::toJsonSpecific() const {
  const auto& parameters =
      dynamic_cast<const PSOParameters&>(*getAlgorithm().getAlgorithmParameters());
  return B::makeJsonKeyValue(
      "PSOParameters",
      B::makeObject({B::makeJsonKeyValue("particlesSize", parameters.swarmSize),
                     B::makeJsonKeyValue("maxIterations", parameters.maxIterations)}));
}

std::string JsonSaveOptMPSO::toJsonSpecific() const {
  const auto& parameters =
      dynamic_cast<const MPSOParameters&>(*getAlgorithm().getAlgorithmParameters());
  return B::makeJsonKeyValue(
      "MPSOParameters",
      B::makeObject({B::makeJsonKeyValue("particlesSize", parameters.swarmSize),
                     B::makeJsonKeyValue("archiveSize", parameters.archiveSize),
                     B::makeJsonKeyValue("maxIterations", parameters.maxIterations)}));
}
