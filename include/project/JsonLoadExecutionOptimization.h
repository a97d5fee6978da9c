#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "optimization/ExecutionOptimization.h"
#include "project/JsonLoadExecutionMethod.h"

// Reads the method of a rule optimisation: the common part, then "objectiveFunctions" (each
// function by its name, without its elements: the scenario's reader gives them once every element
// is read), "personalizedObjectiveFunctions" (optional: each with its formula, whose elements stay
// ids until the run) and "OptAlgorithm", whose swarm is set as it stands, even with fewer than two
// functions, which the scenario's check then reports.
class JsonLoadExecutionOptimization : public JsonLoadExecutionMethod {
 public:
  JsonLoadExecutionOptimization();

  // Reads "OptAlgorithm" of object into method: its "type", named as typeOf knows it, and the
  // parameters of that type.
  static void loadAlgorithm(const nlohmann::json& object, SwarmExecution& method,
                            OptimizationAlgorithmType (*typeOf)(const std::string&));

 protected:
  std::shared_ptr<ExecutionMethod> makeInstance(const Interval& interval) const override;
  void loadSpecific(const nlohmann::json& object, ExecutionMethod& method) const override;

 private:
  static void loadObjectiveFunctions(const nlohmann::json& object, ExecutionOptimization& method);
  static void loadPersonalizedObjectiveFunctions(const nlohmann::json& object,
                                                 ExecutionOptimization& method);
};
