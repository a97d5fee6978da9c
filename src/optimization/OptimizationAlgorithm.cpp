#include "optimization/OptimizationAlgorithm.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "optimization/OptimizationUtils.h"
#include "optimization/kernel/NonUniformMutation.h"
#include "optimization/kernel/OMOPSO.h"
#include "optimization/kernel/PSO.h"
#include "optimization/kernel/PolynomialMutation.h"
#include "optimization/kernel/SMPSO.h"
#include "optimization/kernel/Solution.h"
#include "optimization/kernel/SolutionSet.h"
#include "optimization/kernel/UniformMutation.h"

namespace {

constexpr double kDistributionIndex = 20.0;
constexpr double kPerturbation = 0.5;

void requireAtLeastOne(std::uint32_t value, const std::string& owner, const char* name) {
  if (value < 1) {
    throw std::invalid_argument(owner + "::bindParameters: " + name + " must be at least 1");
  }
}

}  // namespace

OptimizationAlgorithm::OptimizationAlgorithm(std::shared_ptr<AlgorithmParameters> parameters,
                                             const KOVARuleMetalParameters& metalParameters)
    : parameters(std::move(parameters)),
      problem(std::make_unique<KOVARuleMetal>(metalParameters)) {}

OptimizationAlgorithm::~OptimizationAlgorithm() {
  // The set refers to the problem's solution type and the algorithm to the operators: both go
  // first.
  solutions.reset();
  algorithm.reset();
}

void OptimizationAlgorithm::initialize() {
  solutions.reset();
  algorithm.reset();
  operators.clear();
  operatorValues.clear();
  makeAlgorithmInstance();
  bindParameters();
  setOperations();
}

void OptimizationAlgorithm::run() { solutions.reset(algorithm->execute()); }

void OptimizationAlgorithm::printResults(const std::string& folder) const {
  if (!solutions) return;
  const std::filesystem::path base = std::filesystem::u8path(folder);
  solutions->printVariablesToFile((base / "VAR").string());
  solutions->printObjectivesToFile((base / "FUN").string());
}

OptimizationAlgorithm::Matrix OptimizationAlgorithm::makeMatrixOfObjetiveFunctions() const {
  if (!solutions) return {};
  return solutions->writeObjectivesToMatrix();
}

OptimizationAlgorithm::Matrix OptimizationAlgorithm::makeMatrixOfSolutions() const {
  Matrix matrix;
  if (!solutions) return matrix;
  for (int i = 0; i < solutions->size(); ++i) {
    matrix.push_back(OptimizationUtils::makeVectorFromSolution(solutions->get(i)));
  }
  return matrix;
}

double* OptimizationAlgorithm::keep(double value) {
  operatorValues.push_back(value);
  return &operatorValues.back();
}

void OptimizationAlgorithm::addOperator(const std::string& name,
                                        const std::shared_ptr<Operator>& op) {
  operators.push_back(op);
  algorithm->addOperator(name, op.get());
}

double OptimizationAlgorithm::mutationProbability() const {
  return 1.0 / problem->getNumberOfVariables();
}

void OptimizationAlgorithm::addPolynomialMutation() {
  addOperator("mutation", std::make_shared<PolynomialMutation>(std::map<std::string, void*>{
                              {"probability", keep(mutationProbability())},
                              {"distributionIndex", keep(kDistributionIndex)}}));
}

void PSOAlgorithm::makeAlgorithmInstance() { setAlgorithm(std::make_shared<PSO>(getProblem())); }

void PSOAlgorithm::bindParameters() {
  const auto pso = std::dynamic_pointer_cast<PSOParameters>(getAlgorithmParameters());
  if (!pso) throw std::runtime_error("PSOAlgorithm::bindParameters: Invalid algorithm parameters");
  requireAtLeastOne(pso->swarmSize, "PSOAlgorithm", "swarmSize");
  getAlgorithm().setInputParameter("swarmSize", &pso->swarmSize);
  getAlgorithm().setInputParameter("maxIterations", &pso->maxIterations);
}

void PSOAlgorithm::setOperations() { addPolynomialMutation(); }

void MPSOAlgorithm::bindParameters() {
  const auto mpso = std::dynamic_pointer_cast<MPSOParameters>(getAlgorithmParameters());
  if (!mpso) {
    throw std::runtime_error("MPSOAlgorithm::bindParameters: Invalid algorithm parameters");
  }
  requireAtLeastOne(mpso->swarmSize, "MPSOAlgorithm", "swarmSize");
  requireAtLeastOne(mpso->archiveSize, "MPSOAlgorithm", "archiveSize");
  getAlgorithm().setInputParameter("swarmSize", &mpso->swarmSize);
  getAlgorithm().setInputParameter("archiveSize", &mpso->archiveSize);
  getAlgorithm().setInputParameter("maxIterations", &mpso->maxIterations);
}

void SMPSOAlgorithm::makeAlgorithmInstance() {
  setAlgorithm(std::make_shared<SMPSO>(getProblem()));
}

void SMPSOAlgorithm::setOperations() { addPolynomialMutation(); }

void OMOPSOAlgorithm::makeAlgorithmInstance() {
  setAlgorithm(std::make_shared<OMOPSO>(getProblem()));
}

void OMOPSOAlgorithm::setOperations() {
  const auto mpso = std::static_pointer_cast<MPSOParameters>(getAlgorithmParameters());
  double* probability = keep(mutationProbability());
  double* perturbation = keep(kPerturbation);
  addOperator("uniformMutation",
              std::make_shared<UniformMutation>(std::map<std::string, void*>{
                  {"probability", probability}, {"perturbation", perturbation}}));
  addOperator("nonUniformMutation", std::make_shared<NonUniformMutation>(std::map<std::string, void*>{
                                        {"probability", probability},
                                        {"perturbation", perturbation},
                                        {"maxIterations", &mpso->maxIterations}}));
}
