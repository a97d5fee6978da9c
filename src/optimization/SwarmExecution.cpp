#include "optimization/SwarmExecution.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <string>
#include <thread>

#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "operation/OperationSystem.h"
#include "optimization/AlgorithmParametersFactory.h"
#include "optimization/OptimizationAlgorithmFactory.h"
#include "optimization/OptimizationUtils.h"
#include "optimization/kernel/Solution.h"

namespace {

constexpr std::uint32_t kFirstSize = 1;

}  // namespace

SwarmExecution::SwarmExecution(ExecutionType type, const char* className)
    : ExecutionMethod(type),
      className(className),
      threads(std::max(1u, std::thread::hardware_concurrency())) {}

void SwarmExecution::createResults(const Elements& runElements, const Interval& runInterval,
                                   const Enum<ScenarioType>& type) {
  scenarioType = type;
  createContinuousResults(runElements, runInterval, type.getType());
}

void SwarmExecution::run() {
  restartContinuousResults(elements, interval, scenarioType.getType());
  operationSystem->runInterval(interval);
}

std::vector<double> SwarmExecution::simulate(const std::vector<double>& candidate) {
  OptimizationUtils::setDecisionVars(candidate, reservoirs(), *settingsManager);
  run();
  return measure();
}

void SwarmExecution::prepareSimulation(const std::shared_ptr<OperationSystem>& operation,
                                       const Interval& runInterval,
                                       const Enum<ScenarioType>& type) {
  operationSystem = operation;
  interval = runInterval;
  scenarioType = type;
}

void SwarmExecution::configureSolution(Solution* solution) {
  if (!needsSimulation()) {
    record(solution, {});
    return;
  }
  ++simulations;
  record(solution, simulate(OptimizationUtils::makeVectorFromSolution(solution)));
}

void SwarmExecution::evaluateSwarm(const std::vector<Solution*>& solutions) {
  std::vector<std::vector<double>> measures(solutions.size());
  if (needsSimulation()) {
    std::vector<std::vector<double>> candidates;
    for (Solution* solution : solutions) {
      candidates.push_back(OptimizationUtils::makeVectorFromSolution(solution));
    }
    std::vector<std::exception_ptr> failures(evaluators.size());
    std::vector<std::thread> workers;
    for (std::size_t w = 0; w < evaluators.size(); ++w) {
      workers.emplace_back([&, w] {
        try {
          for (std::size_t i = w; i < candidates.size(); i += evaluators.size()) {
            measures[i] = evaluators[w](candidates[i]);
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
    simulations += candidates.size();
  }
  for (std::size_t i = 0; i < solutions.size(); ++i) record(solutions[i], measures[i]);
}

void SwarmExecution::record(Solution* solution, const std::vector<double>& measures) {
  setObjectiveFunctionValue(solution, measures);
  progressBar->updateWithThrow();
}

void SwarmExecution::startProgress(unsigned int steps, const Progress& progress) {
  progressBar = std::make_shared<KOVACoreProgressBar>(0, steps, progress);
  simulations = 0;
}

void SwarmExecution::requireAlgorithm() const {
  if (!algorithm) {
    throw std::runtime_error(std::string(className) + "::run: The algorithm not is configured");
  }
}

std::shared_ptr<AlgorithmParameters> SwarmExecution::getAlgorithmParameters() const {
  return algorithm ? algorithm->getAlgorithmParameters() : nullptr;
}

void SwarmExecution::reconfigureAlgorithm() {
  if (!algorithm) {
    throw std::runtime_error(std::string(className) +
                             "::reconfigureAlgorithm: The algorithm not is configured");
  }
  configure(algorithm->getType(), algorithm->getAlgorithmParameters());
}

void SwarmExecution::setAlgorithm(OptimizationAlgorithmType type,
                                  const std::shared_ptr<AlgorithmParameters>& values) {
  configure(type, values);
}

void SwarmExecution::configure(OptimizationAlgorithmType type,
                               const std::shared_ptr<AlgorithmParameters>& values) {
  algorithm = OptimizationAlgorithmFactory::make(type, values, metalParameters());
}

void SwarmExecution::configureKeepingNumbers(OptimizationAlgorithmType type) {
  auto parameters = AlgorithmParametersFactory::make(type);
  auto& pso = static_cast<PSOParameters&>(*parameters);
  pso.swarmSize = kFirstSize;
  pso.maxIterations = kFirstSize;
  if (auto* mpso = dynamic_cast<MPSOParameters*>(parameters.get())) mpso->archiveSize = kFirstSize;
  if (const auto present = getAlgorithmParameters()) parameters->copyFrom(present);
  configure(type, parameters);
  algorithm->initialize();
}

void SwarmExecution::copySwarmInto(SwarmExecution& copy) const {
  copy.threads = threads;
  if (!algorithm) return;
  auto parameters = AlgorithmParametersFactory::make(algorithm->getType());
  parameters->copyFrom(algorithm->getAlgorithmParameters());
  copy.configure(algorithm->getType(), parameters);
}

KOVARuleMetalParameters SwarmExecution::metalParameters() {
  KOVARuleMetalParameters parameters;
  parameters.evaluate = [this](Solution* solution) { configureSolution(solution); };
  if (evaluators.size() > 1) {
    parameters.evaluateAll = [this](const std::vector<Solution*>& swarm) { evaluateSwarm(swarm); };
  }
  parameters.solutionType = "Real";
  parameters.numberOfVariables = static_cast<int>(
      settingsManager ? OptimizationUtils::getNumOfDecisionVars(reservoirs(), *settingsManager)
                      : 0);
  parameters.numberOfObjectives = numberOfObjectives();
  return parameters;
}

SwarmExecution::Elements SwarmExecution::reservoirs() const {
  return ElementsFilter::filterByType(elements, ElementSets::reservoir());
}
