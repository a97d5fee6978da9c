#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "core/ExecutionMethod.h"
#include "core/KOVACoreProgressBar.h"
#include "core/SettingsManager.h"
#include "optimization/OptimizationAlgorithm.h"

// A run in which a swarm proposes candidates for the reservoirs' optimisable rules. Evaluating
// one writes it into the rules, simulates the whole interval once and measures the outcome, from
// which the concrete run sets the candidate's objectives. The evaluations of a swarm may run on
// threads, each on its own copy of the scenario; the measures are then recorded in the swarm's
// order on the run's thread, so that every thread count gives the same result.
class SwarmExecution : public ExecutionMethod {
 public:
  // Simulates one candidate on a prepared copy of the scenario and gives its measures.
  using Evaluator = std::function<std::vector<double>(const std::vector<double>&)>;

  // One set of continuous result series per enabled element, over interval.
  void createResults(const Elements& elements, const Interval& interval,
                     const Enum<ScenarioType>& scenarioType) override;
  using ExecutionMethod::run;
  // One complete simulation of the stored interval with the stored operation system.
  void run();
  // Writes candidate into the rules, simulates once and gives the measures of the outcome.
  std::vector<double> simulate(const std::vector<double>& candidate);
  // What one simulation needs besides the rules: the operation system, interval and kind.
  void prepareSimulation(const std::shared_ptr<OperationSystem>& operation,
                         const Interval& runInterval, const Enum<ScenarioType>& type);
  // The evaluation of one candidate, which the problem of the swarm calls.
  void configureSolution(Solution* solution);

  // The number of threads that evaluate a swarm; 1 evaluates on the run's own thread. Default:
  // the machine's cores.
  unsigned int getThreads() const { return threads; }
  void setThreads(unsigned int value) { threads = value < 1 ? 1 : value; }
  // One evaluator per thread for the next run, or none to evaluate serially.
  void setEvaluators(std::vector<Evaluator> value) { evaluators = std::move(value); }
  // The whole simulations of the last run: one per evaluated candidate, none for a candidate
  // whose objectives were known without one.
  unsigned long getNumberOfSimulations() const { return simulations; }

  const std::shared_ptr<OptimizationAlgorithm>& getOptimizationAlgorithm() const {
    return algorithm;
  }
  // The parameters of the present swarm, or null before one is configured.
  std::shared_ptr<AlgorithmParameters> getAlgorithmParameters() const;
  // A new swarm of the present type and parameters, sized to the rules as they stand now; not
  // initialised. Throws std::runtime_error "<class>::reconfigureAlgorithm: The algorithm not is
  // configured" before any swarm.
  void reconfigureAlgorithm();
  // A swarm of type with values, as a project file gives them: not initialised.
  void setAlgorithm(OptimizationAlgorithmType type,
                    const std::shared_ptr<AlgorithmParameters>& values);

  // The elements the candidates are written into and read from.
  virtual void setElements(const Elements& value) { elements = value; }
  // The settings of the rules the candidates are written into.
  virtual void setSettingsManager(const SettingsManager* value) { settingsManager = value; }

 protected:
  SwarmExecution(ExecutionType type, const char* className);

  // What the simulation just made gives the concrete run, read from the elements.
  virtual std::vector<double> measure() const = 0;
  // Sets the objectives of solution from the measures of its simulation.
  virtual void setObjectiveFunctionValue(Solution* solution,
                                         const std::vector<double>& measures) = 0;
  // False when the objectives of the candidates to come are known without simulating them; they
  // are then set from empty measures.
  virtual bool needsSimulation() const { return true; }
  virtual int numberOfObjectives() const = 0;

  // A new progress bar of size steps over progress, which every evaluation advances.
  void startProgress(unsigned int steps, const Progress& progress);
  // The algorithm must be configured; throws std::runtime_error "<class>::run: The algorithm not
  // is configured" otherwise.
  void requireAlgorithm() const;
  void configure(OptimizationAlgorithmType type,
                 const std::shared_ptr<AlgorithmParameters>& values);
  // A new swarm of type, initialised, with the numbers of the present parameters where both
  // types have them; 1 for the others (swarm, iterations, archive).
  void configureKeepingNumbers(OptimizationAlgorithmType type);
  // Gives copy the thread count and a new swarm of the same type and parameters.
  void copySwarmInto(SwarmExecution& copy) const;

  const Elements& getElements() const { return elements; }
  const SettingsManager* getSettingsManager() const { return settingsManager; }
  const Interval& getRunInterval() const { return interval; }
  // The kind of the scenario whose results the simulations write, as createResults received it.
  const Enum<ScenarioType>& getResultsKind() const { return scenarioType; }
  Elements reservoirs() const;

 private:
  KOVARuleMetalParameters metalParameters();
  // Evaluates the swarm on the evaluators' threads, then records the measures in the swarm's
  // order on this thread.
  void evaluateSwarm(const std::vector<Solution*>& solutions);
  void record(Solution* solution, const std::vector<double>& measures);

  const char* className;
  Elements elements;
  std::shared_ptr<OperationSystem> operationSystem;
  const SettingsManager* settingsManager = nullptr;
  Interval interval;
  Enum<ScenarioType> scenarioType;
  std::shared_ptr<OptimizationAlgorithm> algorithm;
  std::shared_ptr<KOVACoreProgressBar> progressBar;
  unsigned int threads;
  std::vector<Evaluator> evaluators;
  unsigned long simulations = 0;
};
