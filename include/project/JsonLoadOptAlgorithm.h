#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "optimization/AlgorithmParameters.h"

// Reads the parameters of a swarm of one kind from its algorithm object; the factory chooses the
// reader by the object's "type". Every key is required.
class JsonLoadOptAlgorithm {
 public:
  virtual ~JsonLoadOptAlgorithm() = default;
  // The parameters in object. Throws JsonLoadException for a missing key or a value that is no
  // whole number of at least 1.
  virtual std::shared_ptr<AlgorithmParameters> load(const nlohmann::json& object) const = 0;
};

// Reads "PSOParameters":{"particlesSize","maxIterations"}.
class JsonLoadOptPSO : public JsonLoadOptAlgorithm {
 public:
  std::shared_ptr<AlgorithmParameters> load(const nlohmann::json& object) const override;
};

// Reads "MPSOParameters":{"particlesSize","archiveSize","maxIterations"}, for SMPSO and OMOPSO.
class JsonLoadOptMPSO : public JsonLoadOptAlgorithm {
 public:
  std::shared_ptr<AlgorithmParameters> load(const nlohmann::json& object) const override;
};
