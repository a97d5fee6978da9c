#pragma once

#include <memory>
#include <string>

#include "optimization/OptimizationAlgorithm.h"
#include "project/JsonSaveBuilder.h"

// Writes the swarm of an optimisation: {"type":"<name>",<the parameters of its kind>}.
class JsonSaveOptAlgorithm {
 public:
  explicit JsonSaveOptAlgorithm(std::shared_ptr<OptimizationAlgorithm> algorithm);
  virtual ~JsonSaveOptAlgorithm() = default;

  std::string toJson() const;

 protected:
  // The member of the parameters of the swarm's kind.
  virtual std::string toJsonSpecific() const = 0;
  const OptimizationAlgorithm& getAlgorithm() const { return *algorithm; }

 private:
  std::shared_ptr<OptimizationAlgorithm> algorithm;
};

// "PSOParameters":{"particlesSize":n,"maxIterations":n}
class JsonSaveOptPSO : public JsonSaveOptAlgorithm {
 public:
  using JsonSaveOptAlgorithm::JsonSaveOptAlgorithm;

 protected:
  std::string toJsonSpecific() const override;
};

// "MPSOParameters":{"particlesSize":n,"archiveSize":n,"maxIterations":n}, for SMPSO and OMOPSO.
class JsonSaveOptMPSO : public JsonSaveOptAlgorithm {
 public:
  using JsonSaveOptAlgorithm::JsonSaveOptAlgorithm;

 protected:
  std::string toJsonSpecific() const override;
};
