#include "optimization/ExecutionOptimization.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <thread>

#include "common/Calendar.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "operation/OperationSystem.h"
#include "optimization/AlgorithmParametersFactory.h"
#include "optimization/ObjectiveFunctionFactory.h"
#include "optimization/OptimizationAlgorithmFactory.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/kernel/Solution.h"

namespace {

constexpr std::uint32_t kFirstSize = 1;

// The parameters a swarm of type starts with: those of the present swarm where both have them.
std::shared_ptr<AlgorithmParameters> startingParameters(
    OptimizationAlgorithmType type, const std::shared_ptr<AlgorithmParameters>& present) {
  auto parameters = AlgorithmParametersFactory::make(type);
  if (present) {
    parameters->copyFrom(present);
    return parameters;
  }
  auto& pso = static_cast<PSOParameters&>(*parameters);
  pso.swarmSize = kFirstSize;
  pso.maxIterations = kFirstSize;
  if (auto* mpso = dynamic_cast<MPSOParameters*>(parameters.get())) mpso->archiveSize = kFirstSize;
  return parameters;
}

}  // namespace

ExecutionOptimization::ExecutionOptimization()
    : ExecutionMethod(ExecutionType::optimization),
      threads(std::max(1u, std::thread::hardware_concurrency())) {}

void ExecutionOptimization::createResults(const Elements& runElements, const Interval& runInterval,
                                          const Enum<ScenarioType>& type) {
  scenarioType = type;
  createContinuousResults(runElements, runInterval, type.getType());
}

bool ExecutionOptimization::run(const Interval& runInterval,
                                const std::shared_ptr<OperationSystem>& operation,
                                const Progress& progress) {
  if (!algorithm) {
    throw std::runtime_error("ExecutionOptimization::run: The algorithm not is configured");
  }
  progressBar = std::make_shared<KOVACoreProgressBar>(
      0, algorithm->getAlgorithmParameters()->getNumberOfRuns(), progress);
  prepareSimulation(operation, runInterval, scenarioType);
  try {
    algorithm->initialize();
    algorithm->run();
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    return false;
  }
  return true;
}

void ExecutionOptimization::run() {
  startResults();
  operationSystem->setWindowIndex(0);
  Date date = interval.getBegin();
  while (date <= interval.getEnd()) {
    operationSystem->setDate(date);
    operationSystem->runModel();
    date += Calendar::incInterval(date, interval);
  }
}

void ExecutionOptimization::startResults() {
  const bool made = std::all_of(elements.begin(), elements.end(), [](const auto& element) {
    return !element->isEnabled() || element->getOutputSeries().size() == 1;
  });
  if (!made) {
    createResults(elements, interval, scenarioType);
    return;
  }
  // The previous candidate's series are emptied for this one and keep the room of their values.
  for (const auto& element : elements) {
    if (!element->isEnabled()) continue;
    for (const auto& serie : element->getOutputSeries().front()->makeVectorOfSeries()) {
      serie->clear();
    }
    element->setIntervalSeries(interval);
  }
}

void ExecutionOptimization::configureSolution(Solution* solution) {
  record(solution, simulate(OptimizationUtils::makeVectorFromSolution(solution)));
}

std::vector<double> ExecutionOptimization::simulate(const std::vector<double>& candidate) {
  OptimizationUtils::setDecisionVars(candidate, reservoirs(), *settingsManager);
  run();
  std::vector<double> objectives;
  for (const auto& function : objectiveFunctions) objectives.push_back(function->getValue(0));
  return objectives;
}

void ExecutionOptimization::prepareSimulation(const std::shared_ptr<OperationSystem>& operation,
                                              const Interval& runInterval,
                                              const Enum<ScenarioType>& type) {
  operationSystem = operation;
  interval = runInterval;
  scenarioType = type;
}

void ExecutionOptimization::evaluateSwarm(const std::vector<Solution*>& solutions) {
  std::vector<std::vector<double>> candidates;
  for (Solution* solution : solutions) {
    candidates.push_back(OptimizationUtils::makeVectorFromSolution(solution));
  }
  std::vector<std::vector<double>> objectives(solutions.size());
  std::vector<std::exception_ptr> failures(evaluators.size());
  std::vector<std::thread> workers;
  for (std::size_t w = 0; w < evaluators.size(); ++w) {
    workers.emplace_back([&, w] {
      try {
        for (std::size_t i = w; i < candidates.size(); i += evaluators.size()) {
          objectives[i] = evaluators[w](candidates[i]);
        }
      } catch (...) {
        failures[w] = std::current_exception();
      }
    });
  }
  for (auto& worker : workers) worker.join();
  for (const auto& failure : failures) {
    if (failure) std::rethrow_exception(failure);
  }
  for (std::size_t i = 0; i < solutions.size(); ++i) record(solutions[i], objectives[i]);
}

void ExecutionOptimization::record(Solution* solution, const std::vector<double>& objectives) {
  for (std::size_t i = 0; i < objectives.size(); ++i) {
    solution->setObjective(static_cast<int>(i), objectives[i]);
  }
  progressBar->updateWithThrow();
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

std::shared_ptr<AlgorithmParameters> ExecutionOptimization::getAlgorithmParameters() const {
  return algorithm ? algorithm->getAlgorithmParameters() : nullptr;
}

void ExecutionOptimization::configureAlgorithm(OptimizationAlgorithmType type) {
  if (objectiveFunctions.size() < 2) {
    throw std::runtime_error(
        "ExecutionOptimization::configureAlgorithm: There must be at least two objective "
        "functions.");
  }
  configure(type, startingParameters(type, getAlgorithmParameters()));
  algorithm->initialize();
}

void ExecutionOptimization::reconfigureAlgorithm() {
  if (!algorithm) {
    throw std::runtime_error(
        "ExecutionOptimization::reconfigureAlgorithm: The algorithm not is configured");
  }
  configure(algorithm->getType(), algorithm->getAlgorithmParameters());
}

void ExecutionOptimization::setAlgorithm(OptimizationAlgorithmType type,
                                         const std::shared_ptr<AlgorithmParameters>& values) {
  configure(type, values);
}

void ExecutionOptimization::configure(OptimizationAlgorithmType type,
                                      const std::shared_ptr<AlgorithmParameters>& values) {
  algorithm = OptimizationAlgorithmFactory::make(type, values, metalParameters());
}

KOVARuleMetalParameters ExecutionOptimization::metalParameters() {
  KOVARuleMetalParameters parameters;
  parameters.evaluate = [this](Solution* solution) { configureSolution(solution); };
  if (evaluators.size() > 1) {
    parameters.evaluateAll = [this](const std::vector<Solution*>& swarm) { evaluateSwarm(swarm); };
  }
  parameters.solutionType = "Real";
  parameters.numberOfVariables = static_cast<int>(
      settingsManager ? OptimizationUtils::getNumOfDecisionVars(reservoirs(), *settingsManager) : 0);
  parameters.numberOfObjectives = static_cast<int>(objectiveFunctions.size());
  return parameters;
}

void ExecutionOptimization::setElements(const Elements& value) {
  elements = value;
  for (auto& function : objectiveFunctions) {
    Elements followed;
    for (const auto& old : function->getElements()) {
      const auto found = std::find_if(elements.begin(), elements.end(), [&](const auto& element) {
        return element->getId() == old->getId();
      });
      if (found != elements.end()) followed.push_back(*found);
    }
    function = ObjectiveFunctionFactory::make(function->getType().getType(),
                                              function->isMinimization(), followed);
    function->bindSettings(settingsManager);
  }
}

void ExecutionOptimization::setSettingsManager(const SettingsManager* value) {
  settingsManager = value;
  for (auto& function : objectiveFunctions) function->bindSettings(settingsManager);
}

ExecutionOptimization::Elements ExecutionOptimization::reservoirs() const {
  return ElementsFilter::filterByType(elements, ElementSets::reservoir());
}

std::shared_ptr<ExecutionMethod> ExecutionOptimization::copySpecific() const {
  auto copy = std::make_shared<ExecutionOptimization>();
  copy->objectiveFunctions = objectiveFunctions;
  copy->threads = threads;
  if (algorithm) {
    auto parameters = AlgorithmParametersFactory::make(algorithm->getType());
    parameters->copyFrom(algorithm->getAlgorithmParameters());
    copy->configure(algorithm->getType(), parameters);
  }
  return copy;
}
