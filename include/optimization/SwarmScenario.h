#pragma once

#include <memory>
#include <string>
#include <vector>

#include "optimization/SwarmExecution.h"
#include "scenario/RuleScenario.h"

// A rule simulation whose run is a swarm of simulations. With more than one thread, each thread
// evaluates candidates on its own copy of the scenario, made when the run starts.
class SwarmScenario : public RuleScenario {
 public:
  SwarmExecution& getSwarmExecution() const;
  // A swarm of simulations has no run by isolated networks: refused with status 0.
  bool runIsolated(const Progress& progress) override { return Scenario::runIsolated(progress); }
  std::shared_ptr<OperationSystem> getIsolatedOperationSystem(
      unsigned int isolatedScenarioId) override {
    return Scenario::getIsolatedOperationSystem(isolatedScenarioId);
  }

 protected:
  SwarmScenario(const std::shared_ptr<SwarmExecution>& method, unsigned int id,
                const Interval& interval, const std::string& name);

  // Hands the execution the elements, the settings and the evaluators of its threads, runs the
  // rule scenario and lets the copies go, also when the run throws.
  bool runSwarm(const Progress& progress);

 private:
  // One evaluator per thread of the execution, each on its own copy of this scenario; none for a
  // single thread.
  std::vector<SwarmExecution::Evaluator> makeEvaluators() const;
  // Makes this copy ready to simulate candidates on its own.
  void prepareAsEvaluator();
  void bindExecution();
};
