#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "operation/ClpSolver.h"
#include "operation/KLPKRepresentation.h"
#include "operation/KLPKUtils.h"
#include "operation/LinearProgramSolverFactory.h"
#include "operation/LpSolveSolver.h"
#include "support/ExpectThrow.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

// Maximise 3 x + 2 y under r_0: x + a y <= b, r_1: x (kind) c and, when third, r_2: y <= 1.
struct Programme {
  double a, b, c;
  int kindOfR1;
  bool third;
};

void build(KLPKRepresentation& problem, const Programme& p) {
  KLPKUtils::sglp_erase_prob(&problem);
  KLPKUtils::slp_set_obj_dir(&problem, 2);
  const int x = KLPKUtils::lowColValue(&problem, "x", 0.0);
  const int y = KLPKUtils::lowColValue(&problem, "y", 0.0);
  KLPKUtils::slp_set_obj_coef(&problem, x, 3.0);
  KLPKUtils::slp_set_obj_coef(&problem, y, 2.0);
  const int both[] = {0, x, y};
  const double sum[] = {1.0, 1.0, p.a};
  KLPKUtils::slp_set_mat_row(&problem, KLPKUtils::upRowValue(&problem, "r_0", p.b), 2, both, sum);
  const int onlyX[] = {0, x};
  const int onlyY[] = {0, y};
  const double one[] = {1.0, 1.0};
  const int second = p.kindOfR1 == kUpperBound ? KLPKUtils::upRowValue(&problem, "r_1", p.c)
                                               : KLPKUtils::assignRowValue(&problem, "r_1", p.c);
  KLPKUtils::slp_set_mat_row(&problem, second, 1, onlyX, one);
  if (p.third) {
    KLPKUtils::slp_set_mat_row(&problem, KLPKUtils::upRowValue(&problem, "r_2", 1.0), 1, onlyY,
                               one);
  }
}

struct Expected {
  Programme programme;
  double x, y, objective;
};

// One chain of programmes as the passes of a run bring them: values change (the kept model is
// changed in place), a coefficient changes (loaded again over the kept basis), a row is added
// (a new model).
const std::vector<Expected>& chain() {
  static const std::vector<Expected> all = {
      // x = 3 by r_1, y = 4 - 3 = 1: 9 + 2 = 11.
      {{1.0, 4.0, 3.0, kUpperBound, false}, 3.0, 1.0, 11.0},
      // b = 5: y = 2, 9 + 4 = 13.
      {{1.0, 5.0, 3.0, kUpperBound, false}, 3.0, 2.0, 13.0},
      // x fixed at 2: y = 3, 6 + 6 = 12.
      {{1.0, 5.0, 2.0, kFixedBound, false}, 2.0, 3.0, 12.0},
      // a = 2: 2 y <= 5 - 3, y = 1, 9 + 2 = 11.
      {{2.0, 5.0, 3.0, kUpperBound, false}, 3.0, 1.0, 11.0},
      // r_2 caps y at 1 while x + y <= 8 leaves room: 9 + 2 = 11.
      {{1.0, 8.0, 3.0, kUpperBound, true}, 3.0, 1.0, 11.0},
  };
  return all;
}

}  // namespace

TEST(LinearProgramSolverFactory, EveryKeyMakesItsSolverAndAnUnknownOneIsRefused) {
  EXPECT_EQ(LinearProgramSolverFactory::keys(), (std::vector<std::string>{"clp", "lpsolve"}));
  EXPECT_NE(dynamic_cast<ClpSolver*>(LinearProgramSolverFactory::make("clp").get()), nullptr);
  EXPECT_NE(dynamic_cast<LpSolveSolver*>(LinearProgramSolverFactory::make("lpsolve").get()),
            nullptr);
  EXPECT_FALSE(LinearProgramSolverFactory::has("glpk"));
  EXPECT_THROW_TEXT(LinearProgramSolverFactory::make("glpk"), std::invalid_argument,
                    "LinearProgramSolverFactory::make(): invalid solver glpk, expected clp or "
                    "lpsolve");
}

// Each solver walks the same chain in one representation and finds every optimum computed by hand.
TEST(LinearProgramSolver, BothSolversFollowAChainOfProgrammesToTheirOptima) {
  for (const std::string& key : LinearProgramSolverFactory::keys()) {
    SCOPED_TRACE(key);
    KLPKRepresentation problem;
    problem.useSolver(LinearProgramSolverFactory::make(key));
    for (const Expected& step : chain()) {
      build(problem, step.programme);
      ASSERT_EQ(KLPKUtils::slp_simplex(&problem), 0);
      EXPECT_NEAR(KLPKUtils::slp_get_col_prim(&problem, 0), step.x, 1e-12);
      EXPECT_NEAR(KLPKUtils::slp_get_col_prim(&problem, 1), step.y, 1e-12);
      EXPECT_NEAR(problem.getValueOfOptimizationFound(), step.objective, 1e-12);
    }
  }
}

// x fixed at 5 cannot fit under x + y <= 4: no optimum. The next programme of the chain is
// solved as if the failed one had not been there.
TEST(LinearProgramSolver, AnInfeasibleProgrammeFailsAndTheChainGoesOn) {
  for (const std::string& key : LinearProgramSolverFactory::keys()) {
    SCOPED_TRACE(key);
    KLPKRepresentation problem;
    problem.useSolver(LinearProgramSolverFactory::make(key));
    build(problem, chain().front().programme);
    ASSERT_EQ(KLPKUtils::slp_simplex(&problem), 0);
    build(problem, {1.0, 4.0, 5.0, kFixedBound, false});
    EXPECT_EQ(KLPKUtils::slp_simplex(&problem), 1);
    build(problem, chain()[1].programme);
    ASSERT_EQ(KLPKUtils::slp_simplex(&problem), 0);
    EXPECT_NEAR(KLPKUtils::slp_get_col_prim(&problem, 1), chain()[1].y, 1e-12);
  }
}

// Under CLP the model file is lp_solve's own, and the solution file has lp_solve's form: both
// are the files lp_solve writes for the same programme, byte for byte.
TEST(LinearProgramSolver, ClpWritesTheFilesLpSolveWrites) {
  TemporaryFolder folder("kova_solver_files_");
  std::vector<std::string> model, solution;
  for (const std::string key : {"lpsolve", "clp"}) {
    KLPKRepresentation problem;
    problem.useSolver(LinearProgramSolverFactory::make(key));
    EXPECT_FALSE(problem.writeLp(folder.file(key + std::string("-unsolved.lp"))));
    build(problem, {1.0, 4.5, 3.0, kUpperBound, true});
    ASSERT_EQ(KLPKUtils::slp_simplex(&problem), 0);
    ASSERT_TRUE(problem.writeLp(folder.file(key + std::string(".lp"))));
    ASSERT_TRUE(problem.printSolution(folder.file(key + std::string(".txt"))));
    model.push_back(readFile(folder.file(key + std::string(".lp"))));
    solution.push_back(readFile(folder.file(key + std::string(".txt"))));
  }
  EXPECT_EQ(model[1], model[0]);
  // x = 3, y = 1 (r_2), not the 1.5 that x + y <= 4.5 would leave.
  EXPECT_EQ(solution[0],
            "\nActual values of the variables:\n"
            "x                               3\n"
            "y                               1\n");
  EXPECT_EQ(solution[1], solution[0]);
  EXPECT_NE(model[0].find("R3: +y <= 1;"), std::string::npos) << model[0];
}
