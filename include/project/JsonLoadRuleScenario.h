#pragma once

#include <memory>
#include <string>

#include "project/JsonLoadScenario.h"

// Reads a rule scenario: the common keys and the optional pumping study's deficit costs, the
// first row of "pumpingConfig"."demandDeficits".
class JsonLoadRuleScenario : public JsonLoadScenario {
 public:
  // Gives scenario the first row of "pumpingConfig"."demandDeficits" of object when present (no
  // costs for an empty matrix); the priority scenario reads the same member. Throws
  // nlohmann::json::type_error when the member is no matrix of numbers.
  static void loadPumpingConfig(const nlohmann::json& object, Scenario& scenario);

 protected:
  void specificLoad(const nlohmann::json& object, Scenario& scenario) const override;
  std::shared_ptr<Scenario> getInstance(const std::shared_ptr<ExecutionMethod>& method,
                                        unsigned int id, const Interval& interval,
                                        const std::string& name) const override;
};
