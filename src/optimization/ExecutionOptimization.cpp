#include "optimization/ExecutionOptimization.h"

#include <algorithm>
#include <stdexcept>

#include "optimization/ObjectiveFunctionFactory.h"
#include "optimization/expression/ElementStoreExpression.h"
#include "optimization/kernel/Solution.h"
#include "scenario/ScenarioManager.h"

ExecutionOptimization::ExecutionOptimization()
    : SwarmExecution(ExecutionType::optimization, "ExecutionOptimization") {}

bool ExecutionOptimization::run(const Interval& runInterval,
                                const std::shared_ptr<OperationSystem>& operation,
                                const Progress& progress) {
  requireAlgorithm();
  // Sized to the rules as they stand now, and evaluating on the threads handed over for this run.
  reconfigureAlgorithm();
  auto& algorithm = *getOptimizationAlgorithm();
  startProgress(algorithm.getAlgorithmParameters()->getNumberOfRuns(), progress);
  prepareSimulation(operation, runInterval, getResultsKind());
  try {
    algorithm.initialize();
    algorithm.run();
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    return false;
  }
  return true;
}

std::vector<double> ExecutionOptimization::measure() const {
  std::vector<double> objectives;
  for (const auto& function : objectiveFunctions) objectives.push_back(function->getValue(0));
  for (const auto& configuration : expressionConfigurations) {
    if (configuration.isEnabled()) objectives.push_back(valueOf(configuration));
  }
  return objectives;
}

double ExecutionOptimization::valueOf(
    const ExpressionDefinitionConfiguration& configuration) const {
  const auto root =
      std::dynamic_pointer_cast<ElementStoreExpression>(configuration.getRootExpression());
  const std::string function = "ExecutionOptimization: personalised objective function \"" +
                               configuration.getName() + "\": ";
  if (!root) throw std::invalid_argument(function + "its formula does not start on elements");
  Elements named;
  for (const unsigned int id : root->getElementIDs()) {
    const auto found = std::find_if(getElements().begin(), getElements().end(),
                                    [id](const auto& element) { return element->getId() == id; });
    if (found == getElements().end()) {
      throw std::invalid_argument(function + "no element has id " + std::to_string(id));
    }
    named.push_back(*found);
  }
  return root->interpret(
      Context(ScenarioManager::getInstance().getCurrentScenario(), named, getRunInterval()));
}

int ExecutionOptimization::numberOfObjectives() const {
  const auto enabled =
      std::count_if(expressionConfigurations.begin(), expressionConfigurations.end(),
                    [](const auto& configuration) { return configuration.isEnabled(); });
  return static_cast<int>(objectiveFunctions.size()) + static_cast<int>(enabled);
}

void ExecutionOptimization::addExpressionDefinitionConfiguration(
    ExpressionDefinitionConfiguration configuration) {
  expressionConfigurations.push_back(std::move(configuration));
}

void ExecutionOptimization::setObjectiveFunctionValue(Solution* solution,
                                                      const std::vector<double>& measures) {
  for (std::size_t i = 0; i < measures.size(); ++i) {
    solution->setObjective(static_cast<int>(i), measures[i]);
  }
}

ExecutionOptimization::Functions::const_iterator ExecutionOptimization::findFunction(
    ObjectiveFunctionType type) const {
  return std::find_if(
      objectiveFunctions.begin(), objectiveFunctions.end(),
      [type](const auto& function) { return function->getType().getType() == type; });
}

const std::shared_ptr<ObjectiveFunction>& ExecutionOptimization::getObjectiveFunction(
    ObjectiveFunctionType type) const {
  const auto it = findFunction(type);
  if (it == objectiveFunctions.end()) {
    throw std::invalid_argument(
        "ExecutionOptimization:getObjectiveFunction: The objective function has not been added");
  }
  return *it;
}

bool ExecutionOptimization::isDefinedObjectiveFunction(ObjectiveFunctionType type) const {
  return findFunction(type) != objectiveFunctions.end();
}

void ExecutionOptimization::deleteObjectiveFunction(ObjectiveFunctionType type) {
  const auto it = findFunction(type);
  if (it == objectiveFunctions.end()) {
    throw std::invalid_argument(
        "ExecutionOptimization:deleteObjectiveFunction: The objective function has not been added");
  }
  objectiveFunctions.erase(it);
}

void ExecutionOptimization::addObjectiveFunction(ObjectiveFunctionType type, bool minimize,
                                                 const Elements& functionElements) {
  if (isDefinedObjectiveFunction(type)) {
    throw std::invalid_argument("ExecutionOptimization::addObjectiveFunction: the type:" +
                                ObjectiveFunctionTypeEnum::of(type).getName() + "Already added");
  }
  objectiveFunctions.push_back(ObjectiveFunctionFactory::make(type, minimize, functionElements));
}

void ExecutionOptimization::configureAlgorithm(OptimizationAlgorithmType type) {
  if (numberOfObjectives() < 2) {
    throw std::runtime_error(
        "ExecutionOptimization::configureAlgorithm: There must be at least two objective "
        "functions.");
  }
  configureKeepingNumbers(type);
}

void ExecutionOptimization::setElements(const Elements& value) {
  SwarmExecution::setElements(value);
  for (auto& function : objectiveFunctions) {
    Elements followed;
    for (const auto& old : function->getElements()) {
      const auto found = std::find_if(value.begin(), value.end(), [&](const auto& element) {
        return element->getId() == old->getId();
      });
      if (found != value.end()) followed.push_back(*found);
    }
    function = ObjectiveFunctionFactory::make(function->getType().getType(),
                                              function->isMinimization(), followed);
    function->bindSettings(getSettingsManager());
  }
}

void ExecutionOptimization::setSettingsManager(const SettingsManager* value) {
  SwarmExecution::setSettingsManager(value);
  for (auto& function : objectiveFunctions) function->bindSettings(value);
}

std::shared_ptr<ExecutionMethod> ExecutionOptimization::copySpecific() const {
  auto copy = std::make_shared<ExecutionOptimization>();
  copy->objectiveFunctions = objectiveFunctions;
  copy->expressionConfigurations = expressionConfigurations;
  copySwarmInto(*copy);
  return copy;
}
