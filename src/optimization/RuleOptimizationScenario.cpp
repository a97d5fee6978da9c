#include "optimization/RuleOptimizationScenario.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

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
    : SwarmScenario(method, id, interval, name) {}

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
  // The objective functions read the scenario they belong to as the manager's current one.
  auto& manager = ScenarioManager::getInstance();
  const auto previous = manager.getCurrentScenario();
  manager.setCurrentScenario(shared_from_this());
  bool finished = false;
  try {
    finished = runSwarm(progress);
  } catch (...) {
    manager.setCurrentScenario(previous);
    throw;
  }
  manager.setCurrentScenario(previous);
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
