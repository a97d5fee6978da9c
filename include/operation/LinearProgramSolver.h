#pragma once

#include <chrono>
#include <string>
#include <vector>

class KLPKRepresentation;

// What solves the programmes of a KLPKRepresentation. A solver may keep what it made for one
// programme and use it again for the next, which is why one solver object serves a whole run:
// the passes of a date form a chain of programmes of one shape that differ in the values of their
// rows, and the chain of the next date is most often of the same shape again.
class LinearProgramSolver {
 public:
  virtual ~LinearProgramSolver() = default;

  // Solves model. On an optimum gives true, with one value per column of model in solution (hm³)
  // and the objective value in objective; otherwise false, and both are left as they were.
  [[nodiscard]] virtual bool solve(const KLPKRepresentation& model, std::vector<double>& solution,
                                   double& objective) = 0;
  // The next programmes begin a new chain: the passes of the next date.
  virtual void beginChain() {}
  // Write the last solved programme in lp_solve's LP format, and its solution as lp_solve prints
  // it (one line per column); false when nothing was solved or the file cannot be written.
  virtual bool writeLp(const KLPKRepresentation& model, const std::string& fileName) = 0;
  virtual bool printSolution(const KLPKRepresentation& model, const std::string& fileName) = 0;

  // How many programmes the solvers of this process have solved, and the seconds they spent in
  // the simplex itself (making and changing the solver's model excluded).
  static unsigned long long solvesInProcess();
  static double solverSecondsInProcess();

 protected:
  static void countSolve(std::chrono::steady_clock::duration spent);
};
