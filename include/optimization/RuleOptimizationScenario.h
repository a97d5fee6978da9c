#pragma once

#include <memory>
#include <string>
#include <vector>

#include "optimization/ExecutionOptimization.h"
#include "optimization/SwarmScenario.h"

// A search for the numbers of the reservoirs' optimisable rules: a rule simulation whose run is a
// swarm of simulations. Its outcome is the front: one row of decision variables and one row of
// objective values per solution. A new scenario minimises evaporation and failures with SMPSO,
// one particle, one iteration and an archive of one.
class RuleOptimizationScenario : public SwarmScenario {
 public:
  using Matrix = std::vector<std::vector<double>>;

  RuleOptimizationScenario(unsigned int id, const Interval& interval, const std::string& name);
  // A scenario run by method as it stands, as a project file describes it.
  RuleOptimizationScenario(const std::shared_ptr<ExecutionOptimization>& method, unsigned int id,
                           const Interval& interval, const std::string& name);

  Enum<ScenarioType> getScenarioType() const override;
  // Sizes the swarm to the rules as they stand, runs it and keeps the front. A cancelled run
  // leaves the front as it was and the swarm ready for another run. With a results folder set,
  // the front's variables and objectives are also written there as the files VAR and FUN.
  bool run(const Progress& progress) override;

  ExecutionOptimization& getExecutionOptimization() const;
  void addMinimizeObjectiveFunction(ObjectiveFunctionType type, const Elements& elements);
  void addMaximizeObjectiveFunction(ObjectiveFunctionType type, const Elements& elements);

  const Matrix& getMatrixOfSolutions() const { return matrixOfSolutions; }
  const Matrix& getMatrixOfObjectiveFunctionsValues() const { return matrixOfObjectiveFunctionsValues; }
  void setOptimizationResults(const Matrix& solutions, const Matrix& objectives);
  void cleanSolutionAndObjectiveMatrices();
  // Writes the objective matrix to path: each value followed by a blank, a line per solution.
  // Throws std::runtime_error "RuleOptimizationScenario::printFunctionsInFile: cannot write
  // <path>" when the file cannot be written.
  void printFunctionsInFile(const std::string& path) const;
  // The folder of the VAR and FUN files (the project's folder); empty writes none.
  const std::string& getResultsFolder() const { return resultsFolder; }
  void setResultsFolder(const std::string& value) { resultsFolder = value; }

 protected:
  std::shared_ptr<Scenario> copySpecific() const override;
  std::shared_ptr<SceneryCheck> makeSceneryCheck() override;

 private:
  Matrix matrixOfSolutions;
  Matrix matrixOfObjectiveFunctionsValues;
  std::string resultsFolder;
};
