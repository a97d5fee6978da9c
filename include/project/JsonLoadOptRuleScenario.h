#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "optimization/RuleOptimizationScenario.h"
#include "project/JsonLoadScenario.h"

// Reads a rule-optimisation scenario: the common keys, then the elements of each objective
// function ("elementsIds" of the method's "objectiveFunctions", resolved now that every element
// is read) and the front, "solutions" and "objectiveFunctionsValues", both optional and of as
// many rows as each other.
class JsonLoadOptRuleScenario : public JsonLoadScenario {
 protected:
  void specificLoad(const nlohmann::json& object, Scenario& scenario) const override;
  std::shared_ptr<Scenario> getInstance(const std::shared_ptr<ExecutionMethod>& method,
                                        unsigned int id, const Interval& interval,
                                        const std::string& name) const override;

 private:
  static void loadFunctionElements(const nlohmann::json& object,
                                   RuleOptimizationScenario& scenario);
  static void loadFront(const nlohmann::json& object, RuleOptimizationScenario& scenario);
};
