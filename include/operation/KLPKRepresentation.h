#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "operation/KLPKRow.h"
#include "operation/KLPKVariable.h"
#include "operation/LinearProgramSolver.h"

// A linear programme held in memory, built by name through KLPKUtils and handed to its solver
// only when it is solved. Rows and columns are numbered from 0 in the order they were added and
// found by name through a hash index; rows are kept sparse. The solver is lp_solve unless another
// one is given (LinearProgramSolverFactory), and it is kept from one solve to the next, so that
// what it made for one programme serves the next one of the same shape.
class KLPKRepresentation {
 public:
  enum KLPK_OPT_DIRECTION_FLAG { KLPK_MAX = 0, KLPK_MIN = 1 };
  enum KLPK_TERMINAL_OUTPUT { KLPK_OFF = 0, KLPK_ON = 1 };

  // A programme solved by lp_solve.
  KLPKRepresentation();
  KLPKRepresentation(const KLPKRepresentation&) = delete;
  KLPKRepresentation& operator=(const KLPKRepresentation&) = delete;
  ~KLPKRepresentation();

  // Drops every row, column and objective coefficient; the name, direction and last solve stay.
  void erase();

  // The name, the direction (maximise by default) and the reporting of the programme.
  const std::string& getProblemName() const { return problemName; }
  void setProblemName(const std::string& name) { problemName = name; }
  KLPK_OPT_DIRECTION_FLAG getOptDirection() const { return klpkOptDirectionFlag; }
  void setOptDirection(KLPK_OPT_DIRECTION_FLAG flag) { klpkOptDirectionFlag = flag; }
  KLPK_TERMINAL_OUTPUT getTerminalOutput() const { return klpkTerminalOutput; }
  // With KLPK_ON the solver reports at its normal level (on stderr); with KLPK_OFF it is silent.
  void setTerminalOutput(KLPK_TERMINAL_OUTPUT flag) { klpkTerminalOutput = flag; }

  // The numbers of columns and rows.
  int getNumberOfVariables() const { return static_cast<int>(variables.size()); }
  int getNumberOfRows() const { return static_cast<int>(rows.size()); }
  // The 0-based index of the column or row of that name, or -1.
  int findVariable(const std::string& name) const;
  int findRow(const std::string& name) const;
  // Appends a column (at least 0.0, no upper bound, objective 0.0) or a free row; gives its index.
  int addVariable(const std::string& name);
  int addRow(const std::string& name);
  // The column or row at a 0-based index. Throw std::invalid_argument "The index is out of
  // bounds" for any other index.
  KLPKVariable& getVariable(int index);
  const KLPKVariable& getVariable(int index) const;
  KLPKRow& getRow(int index);
  const KLPKRow& getRow(int index) const;
  // The objective coefficient of a column. Throws as getVariable.
  double getObjectiveCoefficient(int column) const;
  void setObjectiveCoefficient(int column, double value);
  // Every row, column and objective coefficient, in the order of their indices.
  const std::vector<KLPKRow>& getRows() const { return rows; }
  const std::vector<KLPKVariable>& getVariables() const { return variables; }
  const std::vector<double>& getObjective() const { return objective; }

  // Solves the programmes from now on with solver, which must not be null.
  void useSolver(std::unique_ptr<LinearProgramSolver> solver);

  // Solves the programme and keeps the solution in each column: 0 when an optimal solution was
  // found, 1 otherwise (the columns then keep their previous values).
  int executeSimplex();
  // Takes over the solver of other, with what it keeps of its last programmes, so that the
  // programmes solved here next continue its chain; other gets this one's solver and can no
  // longer write its own programme.
  void adoptKeptModel(KLPKRepresentation& other);

  // How many programmes the solvers have solved in this process, and the seconds spent inside
  // their simplex.
  static unsigned long long solvesInProcess() { return LinearProgramSolver::solvesInProcess(); }
  static double solverSecondsInProcess() { return LinearProgramSolver::solverSecondsInProcess(); }
  // The objective value of the last optimal solution.
  double getValueOfOptimizationFound() const { return valueOfOptimizationFound; }
  // Writes the last solved programme in lp_solve's LP format / its solution, one line per
  // column; false when nothing was solved or the file cannot be written.
  bool writeLp(const std::string& fileName) const;
  bool printSolution(const std::string& fileName) const;

 private:
  std::string problemName;
  KLPK_OPT_DIRECTION_FLAG klpkOptDirectionFlag = KLPK_MAX;
  std::vector<KLPKRow> rows;
  std::vector<KLPKVariable> variables;
  std::vector<KLPKRow> spareRows;            // set aside by erase() for the next rows
  std::vector<KLPKVariable> spareVariables;  // and columns
  std::vector<double> objective;
  std::unordered_map<std::string, int> rowIndex;
  std::unordered_map<std::string, int> variableIndex;
  double valueOfOptimizationFound = 0.0;
  std::unique_ptr<LinearProgramSolver> solver;
  std::vector<double> solution;  // hm³, the solver's answer before it is stored in the columns
  bool solved = false;
  KLPK_TERMINAL_OUTPUT klpkTerminalOutput = KLPK_OFF;
};
