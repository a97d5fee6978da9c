#pragma once

#include <memory>
#include <string>

#include "project/JsonLoadScenario.h"

// Reads a priority scenario: the common keys, then the optional "HydrologicalStateType",
// "xValues", "numberOfStatesMonthly" and "pumpingConfig". The shares are stored as they stand:
// whether they add up to at most 1.0 is for the scenario's checks to say. The states' goal series
// are not in the file; each element's settings come with as many as the file lists priorities.
class JsonLoadPriorityScenario : public JsonLoadScenario {
 protected:
  // Throws std::invalid_argument "JsonLoadPriorityScenario::load(): invalid HydrologicalStateType"
  // for a name outside the vocabulary, and nlohmann::json::type_error for a value of the wrong
  // type.
  void specificLoad(const nlohmann::json& object, Scenario& scenario) const override;
  std::shared_ptr<Scenario> getInstance(const std::shared_ptr<ExecutionMethod>& method,
                                        unsigned int id, const Interval& interval,
                                        const std::string& name) const override;
};
