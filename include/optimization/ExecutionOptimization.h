#pragma once

#include <memory>
#include <vector>

#include "core/ExecutionMethod.h"
#include "core/KOVACoreProgressBar.h"
#include "core/SettingsManager.h"
#include "optimization/ObjectiveFunction.h"
#include "optimization/OptimizationAlgorithm.h"

// The run of a rule optimisation. A swarm proposes candidates; evaluating one (configureSolution)
// writes it into the optimisable rules of the reservoirs, simulates the whole interval once and
// reads the objective functions. A run of swarmSize particles over maxIterations iterations
// costs swarmSize * (1 + maxIterations) simulations; the progress bar counts swarmSize *
// maxIterations of them and a false answer cancels the run.
class ExecutionOptimization : public ExecutionMethod {
 public:
  using Functions = std::vector<std::shared_ptr<ObjectiveFunction>>;

  ExecutionOptimization();

  // One set of continuous result series per enabled element, over interval.
  void createResults(const Elements& elements, const Interval& interval,
                     const Enum<ScenarioType>& scenarioType) override;
  // Runs the configured swarm with operation as the simulation of each candidate. Throws
  // std::runtime_error "ExecutionOptimization::run: The algorithm not is configured" without an
  // algorithm; false when progress cancelled the run.
  bool run(const Interval& interval, const std::shared_ptr<OperationSystem>& operation,
           const Progress& progress) override;
  // One complete simulation of the stored interval with the stored operation system.
  void run();
  // The evaluation of one candidate, which the problem of the swarm calls.
  void configureSolution(Solution* solution);

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

  const std::shared_ptr<OptimizationAlgorithm>& getOptimizationAlgorithm() const {
    return algorithm;
  }
  // The parameters of the present swarm, or null before configureAlgorithm.
  std::shared_ptr<AlgorithmParameters> getAlgorithmParameters() const;
  // A new swarm of type over the present rules, initialised. It keeps the numbers of the present
  // parameters (swarm, iterations, archive: 1 each the first time). Throws std::runtime_error
  // "ExecutionOptimization::configureAlgorithm: There must be at least two objective functions."
  // with fewer than two functions.
  void configureAlgorithm(OptimizationAlgorithmType type);
  // A new swarm of the present type and parameters, sized to the rules as they stand now; not
  // initialised and not checked.
  void reconfigureAlgorithm();

  // The elements the candidates are written into and read from; the objective functions follow
  // them by id.
  void setElements(const Elements& value);
  void setSettingsManager(const SettingsManager* value) { settingsManager = value; }

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;

 private:
  KOVARuleMetalParameters metalParameters();
  void configure(OptimizationAlgorithmType type, const std::shared_ptr<AlgorithmParameters>& values);
  Elements reservoirs() const;

  Elements elements;
  std::shared_ptr<OperationSystem> operationSystem;
  const SettingsManager* settingsManager = nullptr;
  Interval interval;
  Enum<ScenarioType> scenarioType;
  std::shared_ptr<OptimizationAlgorithm> algorithm;
  std::shared_ptr<KOVACoreProgressBar> progressBar;
  Functions objectiveFunctions;
};
