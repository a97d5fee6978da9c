#include "optimization/RuleOptimizationScenario.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "core/ElementsFilter.h"
#include "optimization/RuleOptimizationSceneryCheck.h"
#include "scenario/ScenarioManager.h"
#include "vocabulary/Vocabulary.h"

namespace {

constexpr std::uint32_t kDefaultSize = 1;

}  // namespace

RuleOptimizationScenario::RuleOptimizationScenario(unsigned int id, const Interval& interval,
                                                   const std::string& name)
    : RuleOptimizationScenario(std::make_shared<ExecutionOptimization>(), id, interval, name) {
  auto& execution = getExecutionOptimization();
  execution.addObjectiveFunction(ObjectiveFunctionType::evaporationLoss, true, {});
  execution.addObjectiveFunction(ObjectiveFunctionType::numberOfFailures, true, {});
  execution.configureAlgorithm(OptimizationAlgorithmType::smpso);
  auto& parameters = static_cast<MPSOParameters&>(*execution.getAlgorithmParameters());
  parameters.swarmSize = kDefaultSize;
  parameters.maxIterations = kDefaultSize;
  parameters.archiveSize = kDefaultSize;
}

RuleOptimizationScenario::RuleOptimizationScenario(
    const std::shared_ptr<ExecutionOptimization>& method, unsigned int id, const Interval& interval,
    const std::string& name)
    : RuleScenario(method, id, interval, name) {}

Enum<ScenarioType> RuleOptimizationScenario::getScenarioType() const {
  return Vocabulary::of(ScenarioType::ruleOptimizer);
}

ExecutionOptimization& RuleOptimizationScenario::getExecutionOptimization() const {
  return static_cast<ExecutionOptimization&>(*getExecutionMethod());
}

void RuleOptimizationScenario::addMinimizeObjectiveFunction(ObjectiveFunctionType type,
                                                            const Elements& elements) {
  getExecutionOptimization().addObjectiveFunction(type, true, elements);
}

void RuleOptimizationScenario::addMaximizeObjectiveFunction(ObjectiveFunctionType type,
                                                            const Elements& elements) {
  getExecutionOptimization().addObjectiveFunction(type, false, elements);
}

bool RuleOptimizationScenario::run(const Progress& progress) {
  prepareExecution();
  auto& manager = ScenarioManager::getInstance();
  const auto previous = manager.getCurrentScenario();
  manager.setCurrentScenario(shared_from_this());
  bool finished = false;
  try {
    finished = RuleScenario::run(progress);
  } catch (...) {
    manager.setCurrentScenario(previous);
    getExecutionOptimization().setEvaluators({});
    throw;
  }
  manager.setCurrentScenario(previous);
  getExecutionOptimization().setEvaluators({});
  const auto& algorithm = *getExecutionOptimization().getOptimizationAlgorithm();
  if (finished) {
    setOptimizationResults(algorithm.makeMatrixOfSolutions(),
                           algorithm.makeMatrixOfObjetiveFunctions());
    if (!resultsFolder.empty()) algorithm.printResults(resultsFolder);
  } else if (getSceneryStatus().getType() == SceneryStatus::cancelled) {
    getExecutionOptimization().getOptimizationAlgorithm()->initialize();
  }
  return finished;
}

void RuleOptimizationScenario::prepareExecution() {
  auto& execution = getExecutionOptimization();
  execution.setElements(getElements());
  execution.setSettingsManager(&getSettingsManager());
  execution.setEvaluators(makeEvaluators());
  execution.reconfigureAlgorithm();
}

std::vector<ExecutionOptimization::Evaluator> RuleOptimizationScenario::makeEvaluators() const {
  std::vector<ExecutionOptimization::Evaluator> evaluators;
  const unsigned int threads = getExecutionOptimization().getThreads();
  if (threads < 2) return evaluators;
  for (unsigned int k = 0; k < threads; ++k) {
    const auto copy = std::static_pointer_cast<RuleOptimizationScenario>(this->copy());
    copy->prepareAsEvaluator();
    evaluators.push_back([copy](const std::vector<double>& candidate) {
      return copy->getExecutionOptimization().simulate(candidate);
    });
  }
  return evaluators;
}

void RuleOptimizationScenario::prepareAsEvaluator() {
  preRun();
  ExecutionMethod::configureLinkAddonPumping(ElementsFilter::filterByEnabledLinks(getElements()));
  auto& execution = getExecutionOptimization();
  execution.setElements(getElements());
  execution.setSettingsManager(&getSettingsManager());
  execution.prepareSimulation(getOperationSystem(), getInterval(), getScenarioType());
}

void RuleOptimizationScenario::setOptimizationResults(const Matrix& solutions,
                                                      const Matrix& objectives) {
  matrixOfSolutions = solutions;
  matrixOfObjectiveFunctionsValues = objectives;
}

void RuleOptimizationScenario::cleanSolutionAndObjectiveMatrices() {
  matrixOfSolutions.clear();
  matrixOfObjectiveFunctionsValues.clear();
}

void RuleOptimizationScenario::printFunctionsInFile(const std::string& path) const {
  std::ofstream file(std::filesystem::u8path(path));
  for (const auto& row : matrixOfObjectiveFunctionsValues) {
    for (double value : row) file << value << ' ';
    file << '\n';
  }
  file.close();
  if (!file) {
    throw std::runtime_error("RuleOptimizationScenario::printFunctionsInFile: cannot write " +
                             path);
  }
}

std::shared_ptr<Scenario> RuleOptimizationScenario::copySpecific() const {
  const auto method = std::static_pointer_cast<ExecutionOptimization>(getExecutionMethod()->copy());
  std::shared_ptr<RuleOptimizationScenario> copy(
      new RuleOptimizationScenario(method, getId(), getInterval(), getName()));
  copy->matrixOfSolutions = matrixOfSolutions;
  copy->matrixOfObjectiveFunctionsValues = matrixOfObjectiveFunctionsValues;
  copy->resultsFolder = resultsFolder;
  return copy;
}

std::shared_ptr<SceneryCheck> RuleOptimizationScenario::makeSceneryCheck() {
  return std::make_shared<RuleOptimizationSceneryCheck>(weak_from_this());
}
