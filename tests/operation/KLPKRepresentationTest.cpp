#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "operation/KLPKRepresentation.h"
#include "operation/KLPKUtils.h"
#include "support/FileText.h"
#include "support/TemporaryFolder.h"

namespace {

// Maximise 3 x + 2 y under r_0: x + a y <= b and r_1: x (kind, c); x and y at least 0.
struct Programme {
  double a = 1.0, b = 4.0, c = 3.0;
  int kindOfR1 = kUpperBound;
};

void build(KLPKRepresentation& problem, const Programme& p) {
  KLPKUtils::sglp_erase_prob(&problem);
  KLPKUtils::slp_set_obj_dir(&problem, 2);
  const int x = KLPKUtils::lowColValue(&problem, "x", 0.0);
  const int y = KLPKUtils::lowColValue(&problem, "y", 0.0);
  KLPKUtils::slp_set_obj_coef(&problem, x, 3.0);
  KLPKUtils::slp_set_obj_coef(&problem, y, 2.0);
  const int first = KLPKUtils::upRowValue(&problem, "r_0", p.b);
  const int indexes[] = {0, x, y};
  const double values[] = {1.0, 1.0, p.a};
  KLPKUtils::slp_set_mat_row(&problem, first, 2, indexes, values);
  const int second = p.kindOfR1 == kUpperBound ? KLPKUtils::upRowValue(&problem, "r_1", p.c)
                                               : KLPKUtils::assignRowValue(&problem, "r_1", p.c);
  const int only[] = {0, x};
  const double one[] = {1.0, 1.0};
  KLPKUtils::slp_set_mat_row(&problem, second, 1, only, one);
}

struct Solved {
  double x, y, objective;
};

Solved solve(KLPKRepresentation& problem) {
  EXPECT_EQ(KLPKUtils::slp_simplex(&problem), 0);
  return {KLPKUtils::slp_get_col_prim(&problem, 0), KLPKUtils::slp_get_col_prim(&problem, 1),
          problem.getValueOfOptimizationFound()};
}

}  // namespace

// One representation solves the programmes one after the other, as the passes of a date do;
// each must give what a representation of its own gives, to the last bit, and the hand solution.
TEST(KLPKRepresentation, AProgrammeSolvedAfterAnotherGivesWhatANewOneGives) {
  struct Case {
    const char* change;
    Programme programme;
    Solved expected;
  };
  const std::vector<Case> cases = {
      // x = 3 (r_1), y = 4 - 3 = 1: 9 + 2 = 11.
      {"first", {1.0, 4.0, 3.0, kUpperBound}, {3.0, 1.0, 11.0}},
      // a wider r_0: x = 3, y = 5 - 3 = 2: 9 + 4 = 13.
      {"value of a row", {1.0, 5.0, 3.0, kUpperBound}, {3.0, 2.0, 13.0}},
      // r_1 fixed at 1: x = 1, y = 5 - 1 = 4: 3 + 8 = 11.
      {"kind and value of a row", {1.0, 5.0, 1.0, kFixedBound}, {1.0, 4.0, 11.0}},
      // a new coefficient, so a new lp_solve model: x = 1, y = (5 - 1) / 2 = 2: 3 + 4 = 7.
      {"coefficient", {2.0, 5.0, 1.0, kFixedBound}, {1.0, 2.0, 7.0}},
      // back to the first programme.
      {"back", {1.0, 4.0, 3.0, kUpperBound}, {3.0, 1.0, 11.0}},
  };
  KLPKRepresentation reused;
  for (const Case& one : cases) {
    SCOPED_TRACE(one.change);
    build(reused, one.programme);
    const Solved again = solve(reused);
    KLPKRepresentation fresh;
    build(fresh, one.programme);
    const Solved alone = solve(fresh);
    EXPECT_EQ(again.x, alone.x);
    EXPECT_EQ(again.y, alone.y);
    EXPECT_EQ(again.objective, alone.objective);
    EXPECT_NEAR(again.x, one.expected.x, 1e-9);
    EXPECT_NEAR(again.y, one.expected.y, 1e-9);
    EXPECT_NEAR(again.objective, one.expected.objective, 1e-9);
  }
}

// The model and solution files of a reused model are those of a new one.
TEST(KLPKRepresentation, AReusedModelWritesTheFilesOfANewOne) {
  const TemporaryFolder folder("kova_klpk_");
  KLPKRepresentation reused;
  build(reused, {1.0, 4.0, 3.0, kUpperBound});
  solve(reused);
  const Programme second = {1.0, 5.0, 1.0, kFixedBound};
  build(reused, second);
  solve(reused);
  KLPKRepresentation fresh;
  build(fresh, second);
  solve(fresh);
  const auto path = [&](const char* name) { return folder.file(name); };
  ASSERT_TRUE(reused.writeLp(path("reused.lp")));
  ASSERT_TRUE(fresh.writeLp(path("fresh.lp")));
  ASSERT_TRUE(reused.printSolution(path("reused.txt")));
  ASSERT_TRUE(fresh.printSolution(path("fresh.txt")));
  EXPECT_EQ(readFile(path("reused.lp")), readFile(path("fresh.lp")));
  EXPECT_EQ(readFile(path("reused.txt")), readFile(path("fresh.txt")));
  EXPECT_NE(readFile(path("fresh.lp")).find("R2: +x = 1;"), std::string::npos)
      << readFile(path("fresh.lp"));
}

// The model passes from one representation to the next, as from one date to the next; the one
// that gave it away keeps its solution but has nothing left to write.
TEST(KLPKRepresentation, AnAdoptedModelSolvesTheNextProgramme) {
  KLPKRepresentation yesterday;
  build(yesterday, {1.0, 4.0, 3.0, kUpperBound});
  solve(yesterday);
  KLPKRepresentation today;
  today.adoptKeptModel(yesterday);
  build(today, {1.0, 5.0, 3.0, kUpperBound});
  const Solved solved = solve(today);
  EXPECT_NEAR(solved.y, 2.0, 1e-9);  // 5 - 3
  EXPECT_NEAR(KLPKUtils::slp_get_col_prim(&yesterday, 1), 1.0, 1e-9);
  EXPECT_FALSE(yesterday.writeLp((std::filesystem::temp_directory_path() / "kova-never.lp").string()));
}

// An infeasible programme is reported, and the next one is solved on a model of its own.
TEST(KLPKRepresentation, AFailedSolveIsNotReused) {
  KLPKRepresentation problem;
  build(problem, {1.0, 4.0, 3.0, kUpperBound});
  solve(problem);
  build(problem, {1.0, -1.0, 3.0, kUpperBound});  // x + y <= -1 with x, y >= 0
  EXPECT_EQ(KLPKUtils::slp_simplex(&problem), 1);
  build(problem, {1.0, 4.0, 3.0, kUpperBound});
  EXPECT_NEAR(solve(problem).objective, 11.0, 1e-9);
}

TEST(KLPKRepresentation, SolvesAndSolverTimeAreCounted) {
  const unsigned long long before = KLPKRepresentation::solvesInProcess();
  const double seconds = KLPKRepresentation::solverSecondsInProcess();
  KLPKRepresentation problem;
  build(problem, {1.0, 4.0, 3.0, kUpperBound});
  solve(problem);
  solve(problem);
  EXPECT_EQ(KLPKRepresentation::solvesInProcess(), before + 2);
  EXPECT_GE(KLPKRepresentation::solverSecondsInProcess(), seconds);
}
