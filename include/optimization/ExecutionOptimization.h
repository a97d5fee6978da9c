#pragma once

#include <memory>
#include <vector>

#include "optimization/ExpressionDefinitionConfiguration.h"
#include "optimization/ObjectiveFunction.h"
#include "optimization/SwarmExecution.h"

// The run of a rule optimisation. A swarm proposes candidates; evaluating one writes it into the
// optimisable rules of the reservoirs, simulates the whole interval once and reads the objective
// functions, then the enabled personalised functions in their order. A run of swarmSize particles
// over maxIterations iterations costs swarmSize * (1 + maxIterations) simulations; the progress bar
// counts swarmSize * maxIterations of them and a false answer cancels the run.
class ExecutionOptimization : public SwarmExecution {
 public:
  using Functions = std::vector<std::shared_ptr<ObjectiveFunction>>;

  ExecutionOptimization();

  // Runs the configured swarm with operation as the simulation of each candidate. Throws
  // std::runtime_error "ExecutionOptimization::run: The algorithm not is configured" without an
  // algorithm; false when progress cancelled the run.
  bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
           const Progress& progress) override;
  using SwarmExecution::run;

  // Throws std::invalid_argument "ExecutionOptimization:getObjectiveFunction: The objective
  // function has not been added" for a type without a function.
  const std::shared_ptr<ObjectiveFunction>& getObjectiveFunction(ObjectiveFunctionType type) const;
  bool isDefinedObjectiveFunction(ObjectiveFunctionType type) const;
  // Throws std::invalid_argument "ExecutionOptimization:deleteObjectiveFunction: The objective
  // function has not been added" for a type without a function.
  void deleteObjectiveFunction(ObjectiveFunctionType type);
  // Throws std::invalid_argument "ExecutionOptimization::addObjectiveFunction: the type:<name>
  // Already added" for a type that has one.
  void addObjectiveFunction(ObjectiveFunctionType type, bool minimize, const Elements& elements);
  void cleanObjectiveFunctions() { objectiveFunctions.clear(); }
  const Functions& getVectorOfObjectiveFunctions() const { return objectiveFunctions; }

  void addExpressionDefinitionConfiguration(ExpressionDefinitionConfiguration configuration);
  void cleanExpressionDefinitionConfigurations() { expressionConfigurations.clear(); }
  const std::vector<ExpressionDefinitionConfiguration>&
  getVectorOfExpressionDefinitionConfiguration() const {
    return expressionConfigurations;
  }
  // The objective functions and the enabled personalised ones, as many as a candidate has
  // objectives.
  int numberOfObjectives() const override;
  // The value of a personalised function on the elements its root names, from the results of the
  // last simulation. Throws std::invalid_argument naming the function when its root does not name
  // elements or names an element the scenario does not have.
  double valueOf(const ExpressionDefinitionConfiguration& configuration) const;

  // A new swarm of type over the present rules, initialised. It keeps the numbers of the present
  // parameters (swarm, iterations, archive: 1 each the first time). Throws std::runtime_error
  // "ExecutionOptimization::configureAlgorithm: There must be at least two objective functions."
  // with fewer than two functions, personalised ones included.
  void configureAlgorithm(OptimizationAlgorithmType type);

  // The objective functions follow the elements by id.
  void setElements(const Elements& value) override;
  // The objective functions that read rules read them there.
  void setSettingsManager(const SettingsManager* value) override;

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;
  // The value of each objective function.
  std::vector<double> measure() const override;
  void setObjectiveFunctionValue(Solution* solution, const std::vector<double>& measures) override;

 private:
  Functions::const_iterator findFunction(ObjectiveFunctionType type) const;

  Functions objectiveFunctions;
  std::vector<ExpressionDefinitionConfiguration> expressionConfigurations;
};
