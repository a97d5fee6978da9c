#pragma once

#include <map>
#include <string>

class Operator;
class Problem;
class SolutionSet;

// A search over a problem, configured by named operators and untyped input parameters (pointers
// to the caller's storage, read when the run starts; they must outlive the run). The algorithm
// owns neither the problem nor the operators.
class Algorithm {
 public:
  explicit Algorithm(Problem* problem) : problem(problem) {}
  Algorithm(const Algorithm&) = delete;
  Algorithm& operator=(const Algorithm&) = delete;
  virtual ~Algorithm() = default;

  // Runs the search; the caller owns the returned set.
  virtual SolutionSet* execute() = 0;

  // Look-ups of a missing name give null and insert the name.
  void addOperator(const std::string& name, Operator* op) { operators[name] = op; }
  Operator* getOperator(const std::string& name) { return operators[name]; }
  void setInputParameter(const std::string& name, void* value) { inputParameters[name] = value; }
  void* getInputParameter(const std::string& name) { return inputParameters[name]; }
  void setOutputParameter(const std::string& name, void* value) { outputParameters[name] = value; }
  void* getOutputParameter(const std::string& name) { return outputParameters[name]; }

 protected:
  // Hands the first size solutions of swarm to the problem at once, then, when asked, evaluates
  // their constraints one by one.
  void evaluateSwarm(SolutionSet* swarm, int size, bool withConstraints);
  // Moves each of the first size particles by its speed; a variable that crosses a limit stays
  // on it and its speed is multiplied by chVel1 (lower limit) or chVel2 (upper limit).
  void moveWithinLimits(SolutionSet* swarm, int size, double** speed, double chVel1, double chVel2);

  Problem* problem;  // not owned
  std::map<std::string, Operator*> operators;
  std::map<std::string, void*> inputParameters;
  std::map<std::string, void*> outputParameters;
};
