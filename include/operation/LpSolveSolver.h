#pragma once

#include <string>
#include <vector>

#include "operation/KLPKRepresentation.h"
#include "operation/LinearProgramSolver.h"

struct _lprec;

// lp_solve behind the model layer. It receives every row in order, then the bounds of each column
// as rows of their own (at most its upper value unless that is unlimited, then at least its lower
// value), except for the columns whose names end in "volGoal" or "_s", which rest on lp_solve's
// default bounds (0 to infinity).
//
// The lp_solve model of one solve is kept for the next. When the next programme has the same
// columns, the same coefficients in the same rows and the same objective, and differs only in the
// values and kinds of its rows (as the passes of one date do, and often the dates of a run), the
// kept model is changed in place and solved again from lp_solve's starting basis; otherwise it is
// made anew. Either way lp_solve scales the same matrix and starts from the same basis, so the
// solution is the one a new model gives, to the last bit; only the making of the model, and
// lp_solve's search for a BLAS library that comes with it, are saved.
class LpSolveSolver : public LinearProgramSolver {
 public:
  LpSolveSolver() = default;
  LpSolveSolver(const LpSolveSolver&) = delete;
  LpSolveSolver& operator=(const LpSolveSolver&) = delete;
  ~LpSolveSolver() override;

  [[nodiscard]] bool solve(const KLPKRepresentation& model, std::vector<double>& solution,
                           double& objective) override;
  bool writeLp(const KLPKRepresentation& model, const std::string& fileName) override;
  bool printSolution(const KLPKRepresentation& model, const std::string& fileName) override;

  // Writes model in lp_solve's LP format as lp_solve would receive it, without solving it; false
  // when lp_solve cannot take it or the file cannot be written.
  static bool writeUnsolvedLp(const KLPKRepresentation& model, const std::string& fileName);

 private:
  // A row as lp_solve receives it: its kind (lp_solve's LE, GE or EQ), its value and its terms,
  // with columns from 1.
  struct HandedRow {
    int type = 0;
    double value = 0.0;
    std::vector<int> colno;
    std::vector<double> coefs;
  };

  // Fills pending with every row lp_solve is to receive, model rows first, then bound rows.
  void collectHandedRows(const KLPKRepresentation& model);
  void collectModelRows(const KLPKRepresentation& model, std::size_t& count);
  void collectBoundRows(const KLPKRepresentation& model, std::size_t& count);
  HandedRow& nextHandedRow(std::size_t& count);
  static void sortByColumn(HandedRow& row);
  // Whether the kept model differs from pending in nothing but the values and kinds of rows.
  bool keptModelFits(const KLPKRepresentation& model) const;
  static bool hasUnitCoefficientsOnly(const std::vector<HandedRow>& rows);
  void updateKeptModel();
  // The programme as lp_solve takes it; null when lp_solve cannot make one.
  _lprec* produceLPrecPointerUsingMemory(const KLPKRepresentation& model);
  void readSolution(std::vector<double>& solution, double& objective) const;
  void deleteLPrec();

  _lprec* lp = nullptr;
  // What the kept model holds (empty when it may not be reused), and what the next solve hands.
  std::vector<HandedRow> handed, pending;
  bool keptModelReusable = false;
  std::vector<std::string> handedNames;
  std::vector<double> handedObjective;
  KLPKRepresentation::KLPK_OPT_DIRECTION_FLAG handedDirection = KLPKRepresentation::KLPK_MAX;
};
