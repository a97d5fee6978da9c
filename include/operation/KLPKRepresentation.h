#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "operation/KLPKRow.h"
#include "operation/KLPKVariable.h"

struct _lprec;

// A linear programme held in memory, built by name through KLPKUtils and handed to lp_solve only
// when it is solved. Rows and columns are numbered from 0 in the order they were added and found
// by name through a hash index; rows are kept sparse. lp_solve receives every row in order, then
// the bounds of each column as rows of their own (at most its upper value unless that is
// unlimited, then at least its lower value), except for the columns whose names end in "volGoal"
// or "_s", which rest on lp_solve's default bounds (0 to infinity).
//
// The lp_solve model of one solve is kept for the next. When the next programme has the same
// columns, the same coefficients in the same rows and the same objective, and differs only in the
// values and kinds of its rows (as the passes of one date do, and often the dates of a run), the
// kept model is changed in place and solved again from lp_solve's starting basis; otherwise it is
// made anew. Either way lp_solve scales the same matrix and starts from the same basis, so the
// solution is the one a new model gives, to the last bit; only the making of the model, and
// lp_solve's search for a BLAS library that comes with it, are saved.
class KLPKRepresentation {
 public:
  enum KLPK_OPT_DIRECTION_FLAG { KLPK_MAX = 0, KLPK_MIN = 1 };
  enum KLPK_TERMINAL_OUTPUT { KLPK_OFF = 0, KLPK_ON = 1 };

  KLPKRepresentation() = default;
  KLPKRepresentation(const KLPKRepresentation&) = delete;
  KLPKRepresentation& operator=(const KLPKRepresentation&) = delete;
  // Frees the solver's copy of the last solve.
  ~KLPKRepresentation();

  // Drops every row, column and objective coefficient; the name, direction and last solve stay.
  void erase();

  // The name, the direction (maximise by default) and the reporting of the programme.
  const std::string& getProblemName() const { return problemName; }
  void setProblemName(const std::string& name) { problemName = name; }
  KLPK_OPT_DIRECTION_FLAG getOptDirection() const { return klpkOptDirectionFlag; }
  void setOptDirection(KLPK_OPT_DIRECTION_FLAG flag) { klpkOptDirectionFlag = flag; }
  KLPK_TERMINAL_OUTPUT getTerminalOutput() const { return klpkTerminalOutput; }
  // With KLPK_ON lp_solve reports at its normal level (on stderr); with KLPK_OFF it is silent.
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

  // Solves the programme with lp_solve and keeps the solution in each column: 0 when an optimal
  // solution was found, 1 otherwise (the columns then keep their previous values).
  int executeSimplex();
  // Takes over the lp_solve model that other keeps, so that a programme of the same shape solved
  // here next reuses it; other keeps its own columns and solution but can no longer write them.
  void adoptKeptModel(KLPKRepresentation& other);

  // How many programmes executeSimplex() has handed to lp_solve in this process, and the seconds
  // spent inside lp_solve's solve() for them.
  static unsigned long long solvesInProcess();
  static double solverSecondsInProcess();
  // The objective value of the last optimal solution.
  double getValueOfOptimizationFound() const { return valueOfOptimizationFound; }
  // Writes the last solved programme in lp_solve's LP format / its solution, one line per
  // column; false when nothing was solved or the file cannot be written.
  bool writeLp(const std::string& fileName) const;
  bool printSolution(const std::string& fileName) const;

 private:
  // A row as lp_solve receives it: its kind (lp_solve's LE, GE or EQ), its value and its terms,
  // with columns from 1.
  struct HandedRow {
    int type = 0;
    double value = 0.0;
    std::vector<int> colno;
    std::vector<double> coefs;
  };

  int verbosity() const;
  // Fills pending with every row lp_solve is to receive, model rows first, then bound rows.
  void collectHandedRows();
  void collectModelRows(std::size_t& count);
  void collectBoundRows(std::size_t& count);
  HandedRow& nextHandedRow(std::size_t& count);
  static void sortByColumn(HandedRow& row);
  // Whether the kept model differs from pending in nothing but the values and kinds of rows.
  bool keptModelFits() const;
  static bool hasUnitCoefficientsOnly(const std::vector<HandedRow>& rows);
  void updateKeptModel();
  // The programme as lp_solve takes it; null when lp_solve cannot make one.
  _lprec* produceLPrecPointerUsingMemory();
  void setDirection(_lprec* target) const;
  void readSolution();
  void deleteLPrec();

  std::string problemName;
  KLPK_OPT_DIRECTION_FLAG klpkOptDirectionFlag = KLPK_MAX;
  std::vector<KLPKRow> rows;
  std::vector<KLPKVariable> variables;
  std::vector<double> objective;
  std::unordered_map<std::string, int> rowIndex;
  std::unordered_map<std::string, int> variableIndex;
  double valueOfOptimizationFound = 0.0;
  _lprec* lp = nullptr;
  // What the kept model holds (empty when it may not be reused), and what the next solve hands.
  std::vector<HandedRow> handed, pending;
  bool keptModelReusable = false;
  std::vector<std::string> handedNames;
  std::vector<double> handedObjective;
  KLPK_OPT_DIRECTION_FLAG handedDirection = KLPK_MAX;
  KLPK_TERMINAL_OUTPUT klpkTerminalOutput = KLPK_OFF;
};
