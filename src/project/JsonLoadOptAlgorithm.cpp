#include "project/JsonLoadOptAlgorithm.h"

#include <cstdint>
#include <string>

#include "project/JsonLoadHelper.h"

using json = nlohmann::json;
using Helper = JsonLoadHelper;

namespace {

// A size of the swarm: a swarm, an archive or a run of no member or no iteration finds nothing.
std::uint32_t sizeOf(const json& values, const std::string& key) {
  const json& value = Helper::findRequired(values, key);
  const auto size = Helper::get<std::uint32_t>(value);
  if (size < 1) Helper::refuse(value, "a whole number of at least 1");
  return size;
}

}  // namespace

std::shared_ptr<AlgorithmParameters> JsonLoadOptPSO::load(const json& object) const {
  const json& values = Helper::findRequired(object, "PSOParameters");
  auto parameters = std::make_shared<PSOParameters>();
  parameters->swarmSize = sizeOf(values, "particlesSize");
  parameters->maxIterations = sizeOf(values, "maxIterations");
  return parameters;
}

std::shared_ptr<AlgorithmParameters> JsonLoadOptMPSO::load(const json& object) const {
  const json& values = Helper::findRequired(object, "MPSOParameters");
  auto parameters = std::make_shared<MPSOParameters>();
  parameters->swarmSize = sizeOf(values, "particlesSize");
  parameters->archiveSize = sizeOf(values, "archiveSize");
  parameters->maxIterations = sizeOf(values, "maxIterations");
  return parameters;
}
