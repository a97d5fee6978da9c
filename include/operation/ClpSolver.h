#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "operation/LinearProgramSolver.h"

class ClpSimplex;

// COIN-OR CLP behind the model layer. Column bounds are handed as bounds (goals and slacks from 0
// to infinity, as under lp_solve), rows sparse, and one CLP model is kept for the whole run: a
// programme with the same columns and the same terms in its rows only changes the row and column
// bounds and the objective of the kept model, one with other coefficients in the same places is
// loaded again over the kept basis, and only a programme of another shape starts afresh.
//
// Warm starts. The passes of a date differ in row values alone, and the optimum of one pass stays
// feasible for the next (what it gave is pinned, and what the next priority asks for was held at
// zero), so each pass after the first starts the primal simplex from the basis of the pass before.
// The first pass of a date starts the dual simplex from the basis of the first pass of the date
// before: the objective is the same, only what the reservoirs hold has changed.
//
// Where a programme has one optimum, CLP finds the vertex lp_solve finds. Where several vertices
// share the optimal objective (two links that can carry the same water at the same weight), CLP
// may stop at another one than lp_solve; the objective is the same, the flows are not.
class ClpSolver : public LinearProgramSolver {
 public:
  ClpSolver();
  ClpSolver(const ClpSolver&) = delete;
  ClpSolver& operator=(const ClpSolver&) = delete;
  ~ClpSolver() override;

  [[nodiscard]] bool solve(const KLPKRepresentation& model, std::vector<double>& solution,
                           double& objective) override;
  void beginChain() override { passInChain = 0; }
  // The model file is lp_solve's, written by lp_solve from the same programme; the solution file
  // has the form of lp_solve's with CLP's values.
  bool writeLp(const KLPKRepresentation& model, const std::string& fileName) override;
  bool printSolution(const KLPKRepresentation& model, const std::string& fileName) override;

 private:
  // The programme in CLP's terms: rows by their start in columns/elements.
  struct Programme {
    int numberColumns = 0;
    std::vector<int> rowStarts, columns;
    std::vector<double> elements, rowLower, rowUpper, columnLower, columnUpper, objective;
    double direction = -1.0;  // CLP's sense: -1 maximises, 1 minimises
  };

  void gather(const KLPKRepresentation& model);
  void gatherRows(const KLPKRepresentation& model);
  void gatherColumns(const KLPKRepresentation& model);
  bool sameShape() const;
  void load(bool keepBasis);
  void update();
  // Solves from the basis the chain gives; true on an optimum.
  bool simplex();
  void keepBasis();

  std::unique_ptr<ClpSimplex> clp;
  Programme loaded, next;
  bool hasModel = false;
  std::vector<unsigned char> savedStatus;
  // The basis of each pass of the last date, by the pass's place in its chain.
  std::vector<std::vector<unsigned char>> chainBases;
  std::size_t passInChain = 0;
};
