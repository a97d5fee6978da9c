#pragma once

#include <functional>
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
  // Simulates one candidate on a prepared copy of the scenario and gives its objectives.
  using Evaluator = std::function<std::vector<double>(const std::vector<double>&)>;

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
  // Writes candidate into the rules, simulates once and gives the objective values.
  std::vector<double> simulate(const std::vector<double>& candidate);
  // What one simulation needs besides the rules: the operation system, interval and kind.
  void prepareSimulation(const std::shared_ptr<OperationSystem>& operation,
                         const Interval& runInterval, const Enum<ScenarioType>& type);

  // The number of threads that evaluate a swarm; 1 evaluates on the run's own thread. Each thread
  // evaluates on its own copy of the scenario, and the swarm's draws stay on the run's thread, so
  // every thread count gives the same front. Default: the machine's cores.
  unsigned int getThreads() const { return threads; }
  void setThreads(unsigned int value) { threads = value < 1 ? 1 : value; }
  // One evaluator per thread for the next run, or none to evaluate serially.
  void setEvaluators(std::vector<Evaluator> value) { evaluators = std::move(value); }

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
  // A swarm of type with values, as a project file gives them: neither initialised nor checked
  // against the number of objective functions, which the scenario's check reports.
  void setAlgorithm(OptimizationAlgorithmType type,
                    const std::shared_ptr<AlgorithmParameters>& values);

  // The elements the candidates are written into and read from; the objective functions follow
  // them by id.
  void setElements(const Elements& value);
  // The settings of the rules the candidates are written into; the objective functions that read
  // rules read them there.
  void setSettingsManager(const SettingsManager* value);

 protected:
  std::shared_ptr<ExecutionMethod> copySpecific() const override;

 private:
  KOVARuleMetalParameters metalParameters();
  Functions::const_iterator findFunction(ObjectiveFunctionType type) const;
  // Evaluates the swarm on the evaluators' threads, then records objectives and progress in the
  // swarm's order on this thread.
  void evaluateSwarm(const std::vector<Solution*>& solutions);
  void record(Solution* solution, const std::vector<double>& objectives);
  // Empty result series for a simulation: those of the previous one emptied where every enabled
  // element has them, new ones otherwise.
  void startResults();
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
  unsigned int threads;
  std::vector<Evaluator> evaluators;
};
