#include "operation/LinearProgramSolver.h"

#include <atomic>

namespace {

std::atomic<unsigned long long> solveCount{0};
std::atomic<unsigned long long> solverNanoseconds{0};

}  // namespace

unsigned long long LinearProgramSolver::solvesInProcess() { return solveCount; }

double LinearProgramSolver::solverSecondsInProcess() {
  return static_cast<double>(solverNanoseconds.load()) * 1e-9;
}

void LinearProgramSolver::countSolve(std::chrono::steady_clock::duration spent) {
  ++solveCount;
  solverNanoseconds += static_cast<unsigned long long>(
      std::chrono::duration_cast<std::chrono::nanoseconds>(spent).count());
}
