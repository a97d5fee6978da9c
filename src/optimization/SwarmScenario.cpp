#include "optimization/SwarmScenario.h"

#include "core/ElementsFilter.h"

SwarmScenario::SwarmScenario(const std::shared_ptr<SwarmExecution>& method, unsigned int id,
                             const Interval& interval, const std::string& name)
    : RuleScenario(method, id, interval, name) {}

SwarmExecution& SwarmScenario::getSwarmExecution() const {
  return static_cast<SwarmExecution&>(*getExecutionMethod());
}

bool SwarmScenario::runSwarm(const Progress& progress) {
  auto& execution = getSwarmExecution();
  bindExecution();
  execution.setEvaluators(makeEvaluators());
  try {
    const bool finished = RuleScenario::run(progress);
    execution.setEvaluators({});
    return finished;
  } catch (...) {
    execution.setEvaluators({});
    throw;
  }
}

void SwarmScenario::bindExecution() {
  auto& execution = getSwarmExecution();
  execution.setElements(getElements());
  execution.setSettingsManager(&getSettingsManager());
}

std::vector<SwarmExecution::Evaluator> SwarmScenario::makeEvaluators() const {
  std::vector<SwarmExecution::Evaluator> evaluators;
  const unsigned int threads = getSwarmExecution().getThreads();
  if (threads < 2) return evaluators;
  for (unsigned int k = 0; k < threads; ++k) {
    const auto copy = std::static_pointer_cast<SwarmScenario>(this->copy());
    copy->prepareAsEvaluator();
    evaluators.push_back([copy](const std::vector<double>& candidate) {
      return copy->getSwarmExecution().simulate(candidate);
    });
  }
  return evaluators;
}

void SwarmScenario::prepareAsEvaluator() {
  preRun();
  ExecutionMethod::configureLinkAddonPumping(ElementsFilter::filterByEnabledLinks(getElements()));
  bindExecution();
  getSwarmExecution().prepareSimulation(getOperationSystem(), getInterval(), getScenarioType());
}
