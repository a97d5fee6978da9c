#pragma once

class Problem;
class Variable;

// How the variables of a problem's solutions are encoded. It makes and copies the array of
// variables that a Solution owns; the array holds variableArrayLength() entries.
class SolutionType {
 public:
  explicit SolutionType(Problem* problem) : problem(problem) {}
  SolutionType(const SolutionType&) = delete;
  SolutionType& operator=(const SolutionType&) = delete;
  virtual ~SolutionType() = default;

  // A new array of new variables; the caller owns both.
  virtual Variable** createVariables() = 0;
  // A new array with a deep copy of each entry of variables.
  virtual Variable** copyVariables(Variable** variables);
  // Entries in the arrays this type makes: one per variable of the problem.
  virtual int variableArrayLength() const;

  Problem* getProblem() const { return problem; }

 protected:
  Problem* problem;  // not owned
};

// One Real per variable within the problem's limits.
class RealSolutionType : public SolutionType {
 public:
  using SolutionType::SolutionType;
  Variable** createVariables() override;
};

// One BinaryReal per variable with the problem's precision in bits; a problem without a precision
// is first given 30 bits for every variable.
class BinaryRealSolutionType : public SolutionType {
 public:
  using SolutionType::SolutionType;
  Variable** createVariables() override;
};

// A single ArrayReal holding all the variables.
class ArrayRealSolutionType : public SolutionType {
 public:
  using SolutionType::SolutionType;
  // Throws KernelException when the problem has no solution type.
  Variable** createVariables() override;
  Variable** copyVariables(Variable** variables) override;
  int variableArrayLength() const override { return 1; }
};
