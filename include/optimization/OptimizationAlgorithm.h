#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "optimization/AlgorithmParameters.h"
#include "optimization/KOVARuleMetal.h"
#include "optimization/OptimizationAlgorithmType.h"

class Algorithm;
class Operator;
class SolutionSet;

// One swarm set up for a rule-optimisation problem: it owns the problem, the kernel algorithm, its
// operators and their parameter values, and the final set of solutions. initialize() makes a fresh
// algorithm (makeAlgorithmInstance, bindParameters, setOperations, in that order); run() executes
// it and keeps what it returns.
class OptimizationAlgorithm {
 public:
  using Matrix = std::vector<std::vector<double>>;

  OptimizationAlgorithm(std::shared_ptr<AlgorithmParameters> parameters,
                        const KOVARuleMetalParameters& metalParameters);
  virtual ~OptimizationAlgorithm();
  OptimizationAlgorithm(const OptimizationAlgorithm&) = delete;
  OptimizationAlgorithm& operator=(const OptimizationAlgorithm&) = delete;

  virtual OptimizationAlgorithmType getType() const = 0;

  void initialize();
  // Executes the algorithm made by initialize(); what the kernel throws passes through.
  void run();
  // Writes the decision variables of the solutions to folder/VAR and their objectives to
  // folder/FUN, one solution a line.
  void printResults(const std::string& folder) const;

  const std::shared_ptr<AlgorithmParameters>& getAlgorithmParameters() const { return parameters; }
  // One row per solution of the last run, in set order; empty before any run.
  Matrix makeMatrixOfObjetiveFunctions() const;
  Matrix makeMatrixOfSolutions() const;

 protected:
  virtual void makeAlgorithmInstance() = 0;
  virtual void bindParameters() = 0;
  virtual void setOperations() = 0;

  KOVARuleMetal* getProblem() const { return problem.get(); }
  Algorithm& getAlgorithm() const { return *algorithm; }
  void setAlgorithm(std::shared_ptr<Algorithm> value) { algorithm = std::move(value); }
  // A value that an operator reads through its address for as long as this object lives.
  double* keep(double value);
  // Hands op to the algorithm under name and keeps it alive with the algorithm.
  void addOperator(const std::string& name, const std::shared_ptr<Operator>& op);
  // 1 / number of variables: the mutation probability of every swarm.
  double mutationProbability() const;
  // The operator "mutation": polynomial, of probability 1 / variables and distribution index 20.
  void addPolynomialMutation();

 private:
  std::shared_ptr<AlgorithmParameters> parameters;
  std::unique_ptr<KOVARuleMetal> problem;
  std::deque<double> operatorValues;
  std::vector<std::shared_ptr<Operator>> operators;
  std::shared_ptr<Algorithm> algorithm;
  std::shared_ptr<SolutionSet> solutions;
};

// The single-objective swarm. bindParameters needs PSOParameters (std::runtime_error
// "PSOAlgorithm::bindParameters: Invalid algorithm parameters" otherwise) with a swarm of at least
// one particle (std::invalid_argument "PSOAlgorithm::bindParameters: swarmSize must be at least 1").
class PSOAlgorithm : public OptimizationAlgorithm {
 public:
  using OptimizationAlgorithm::OptimizationAlgorithm;
  OptimizationAlgorithmType getType() const override { return OptimizationAlgorithmType::pso; }

 protected:
  void makeAlgorithmInstance() override;
  void bindParameters() override;
  // A polynomial mutation of probability 1 / variables and distribution index 20.
  void setOperations() override;
};

// The multi-objective swarms. bindParameters needs MPSOParameters (std::runtime_error
// "MPSOAlgorithm::bindParameters: Invalid algorithm parameters" otherwise) with a swarm and an
// archive of at least one (std::invalid_argument "MPSOAlgorithm::bindParameters: swarmSize must be
// at least 1", likewise archiveSize).
class MPSOAlgorithm : public OptimizationAlgorithm {
 public:
  using OptimizationAlgorithm::OptimizationAlgorithm;

 protected:
  void bindParameters() override;
};

class SMPSOAlgorithm : public MPSOAlgorithm {
 public:
  using MPSOAlgorithm::MPSOAlgorithm;
  OptimizationAlgorithmType getType() const override { return OptimizationAlgorithmType::smpso; }

 protected:
  void makeAlgorithmInstance() override;
  // A polynomial mutation of probability 1 / variables and distribution index 20.
  void setOperations() override;
};

class OMOPSOAlgorithm : public MPSOAlgorithm {
 public:
  using MPSOAlgorithm::MPSOAlgorithm;
  OptimizationAlgorithmType getType() const override { return OptimizationAlgorithmType::omopso; }

 protected:
  void makeAlgorithmInstance() override;
  // A uniform and a non-uniform mutation of probability 1 / variables and perturbation 0.5, the
  // latter over the parameters' maxIterations.
  void setOperations() override;
};
