#pragma once

#include <memory>
#include <nlohmann/json.hpp>

#include "core/Reservoir.h"
#include "project/JsonLoadNode.h"

// Reads a reservoir's item: the node wrapper, the optional volumes (hm³), isolation flag, maximum
// release (m³/s) and institutional ids ("InstutionalID"), and the required interpolator
// ("regressionTech"). What is absent keeps the value of a new reservoir.
class JsonLoadReservoir : public JsonLoadNode {
 public:
  JsonLoadReservoir(std::shared_ptr<Reservoir> reservoir, std::shared_ptr<Scenario> scenario);

 protected:
  // Throws std::invalid_argument from JsonLoadRegressionTechniqueFactory for an unknown
  // interpolator.
  void loadSpecific(const nlohmann::json& item) override;

 private:
  std::shared_ptr<Reservoir> reservoir;
};
