#include "operation/ClpSolver.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <coin/ClpSimplex.hpp>
#include <coin/CoinPackedMatrix.hpp>
#include <cstdio>

#include "common/NumericalUtils.h"
#include "common/StringUtils.h"
#include "operation/KLPKRepresentation.h"
#include "operation/LpSolveSolver.h"

namespace {

// CLP keeps its work areas and factorisation from one solve to the next instead of making them
// for every programme.
constexpr int kKeepWorkAreas = 1;

const double kInfinity = COIN_DBL_MAX;
// What lp_solve prints as 0 in a solution file.
constexpr double kPrintedZero = 1e-11;

bool restsOnDefaultBounds(const std::string& name) {
  return StringUtils::endsWith(name, "volGoal") || StringUtils::endsWith(name, "_s");
}

// Values at or beyond the near-maximum double mean "no limit", as they do for lp_solve.
double finiteOrInfinite(double value) {
  return value >= NumericalUtils::getNearMaxDouble() ? kInfinity : value;
}

template <typename Set>
void setChanged(const std::vector<double>& was, const std::vector<double>& now, Set set) {
  for (std::size_t at = 0; at < now.size(); ++at) {
    if (was[at] != now[at]) set(static_cast<int>(at));
  }
}

}  // namespace

ClpSolver::ClpSolver() : clp(std::make_unique<ClpSimplex>()) { clp->setLogLevel(0); }

ClpSolver::~ClpSolver() = default;

void ClpSolver::gather(const KLPKRepresentation& model) {
  next.numberColumns = model.getNumberOfVariables();
  next.direction = model.getOptDirection() == KLPKRepresentation::KLPK_MAX ? -1.0 : 1.0;
  next.objective.assign(model.getObjective().begin(), model.getObjective().end());
  gatherRows(model);
  gatherColumns(model);
}

// The rows lp_solve would receive, in the same order: a row without a kind of bound is left out.
void ClpSolver::gatherRows(const KLPKRepresentation& model) {
  next.rowStarts.assign(1, 0);
  next.columns.clear();
  next.elements.clear();
  next.rowLower.clear();
  next.rowUpper.clear();
  for (const KLPKRow& row : model.getRows()) {
    const double value = finiteOrInfinite(row.upper);
    switch (row.typeOfBound) {
      case kFixedBound:
        next.rowLower.push_back(value);
        next.rowUpper.push_back(value);
        break;
      case kUpperBound:
        next.rowLower.push_back(-kInfinity);
        next.rowUpper.push_back(value);
        break;
      case kLowerBound:
        next.rowLower.push_back(value);
        next.rowUpper.push_back(kInfinity);
        break;
      default:
        continue;
    }
    next.columns.insert(next.columns.end(), row.variablesIDs.begin(), row.variablesIDs.end());
    next.elements.insert(next.elements.end(), row.coefs.begin(), row.coefs.end());
    next.rowStarts.push_back(static_cast<int>(next.columns.size()));
  }
}

// The bounds lp_solve's bound rows and default bounds give together: never below 0.0.
void ClpSolver::gatherColumns(const KLPKRepresentation& model) {
  next.columnLower.clear();
  next.columnUpper.clear();
  for (const KLPKVariable& variable : model.getVariables()) {
    double lower = 0.0;
    double upper = kInfinity;
    if (!restsOnDefaultBounds(variable.variableName)) {
      lower = variable.typeOfBound == kFixedBound   ? variable.upper
              : variable.typeOfBound == kUpperBound ? 0.0
                                                    : variable.lower;
      if (variable.typeOfBound != kLowerBound) upper = finiteOrInfinite(variable.upper);
      lower = std::max(lower, 0.0);
    }
    next.columnLower.push_back(lower);
    next.columnUpper.push_back(upper);
  }
}

bool ClpSolver::sameShape() const {
  return hasModel && loaded.numberColumns == next.numberColumns &&
         loaded.rowStarts == next.rowStarts && loaded.columns == next.columns;
}

void ClpSolver::load(bool keepBasis) {
  if (keepBasis && clp->statusExists()) {
    const unsigned char* status = clp->statusArray();
    savedStatus.assign(status, status + loaded.numberColumns + loaded.rowStarts.size() - 1);
  }
  const int numberRows = static_cast<int>(next.rowStarts.size()) - 1;
  const CoinPackedMatrix matrix(
      false, next.numberColumns, numberRows, static_cast<CoinBigIndex>(next.columns.size()),
      next.elements.data(), next.columns.data(), next.rowStarts.data(), nullptr);
  clp->loadProblem(matrix, next.columnLower.data(), next.columnUpper.data(), next.objective.data(),
                   next.rowLower.data(), next.rowUpper.data());
  clp->setOptimizationDirection(next.direction);
  if (keepBasis) {
    clp->copyinStatus(savedStatus.data());
  } else {
    chainBases.clear();
  }
  hasModel = true;
  std::swap(loaded, next);
}

void ClpSolver::update() {
  ClpSimplex& target = *clp;
  for (std::size_t row = 0; row + 1 < next.rowStarts.size(); ++row) {
    if (loaded.rowLower[row] != next.rowLower[row] || loaded.rowUpper[row] != next.rowUpper[row]) {
      target.setRowBounds(static_cast<int>(row), next.rowLower[row], next.rowUpper[row]);
    }
  }
  for (int column = 0; column < next.numberColumns; ++column) {
    const auto at = static_cast<std::size_t>(column);
    if (loaded.columnLower[at] != next.columnLower[at] ||
        loaded.columnUpper[at] != next.columnUpper[at]) {
      target.setColumnBounds(column, next.columnLower[at], next.columnUpper[at]);
    }
  }
  setChanged(loaded.objective, next.objective,
             [&](int column) { target.setObjectiveCoefficient(column, next.objective[column]); });
  if (loaded.direction != next.direction) target.setOptimizationDirection(next.direction);
  std::swap(loaded, next);
}

bool ClpSolver::simplex() {
  const bool firstPass = passInChain == 0;
  if (firstPass && !chainBases.empty()) clp->copyinStatus(chainBases.front().data());
  const auto start = std::chrono::steady_clock::now();
  if (firstPass) {
    clp->dual(0, kKeepWorkAreas);
  } else {
    clp->primal(0, kKeepWorkAreas);
  }
  if (clp->status() != 0) {
    // A start that led nowhere is not a verdict on the programme: solve it from the slack basis.
    clp->allSlackBasis(true);
    clp->dual();
  }
  countSolve(std::chrono::steady_clock::now() - start);
  return clp->status() == 0;
}

void ClpSolver::keepBasis() {
  if (chainBases.size() <= passInChain) chainBases.resize(passInChain + 1);
  const unsigned char* status = clp->statusArray();
  chainBases[passInChain].assign(status, status + clp->getNumCols() + clp->getNumRows());
  ++passInChain;
}

bool ClpSolver::solve(const KLPKRepresentation& model, std::vector<double>& solution,
                      double& objective) {
  gather(model);
  if (!sameShape()) {
    load(false);
  } else if (loaded.elements != next.elements) {
    load(true);
  } else {
    update();
  }
  if (!simplex()) return false;
  keepBasis();
  const double* values = clp->getColSolution();
  solution.assign(values, values + clp->getNumCols());
  objective = clp->objectiveValue();
  return true;
}

bool ClpSolver::writeLp(const KLPKRepresentation& model, const std::string& fileName) {
  return LpSolveSolver::writeUnsolvedLp(model, fileName);
}

bool ClpSolver::printSolution(const KLPKRepresentation& model, const std::string& fileName) {
  FILE* file = std::fopen(fileName.c_str(), "w");
  if (file == nullptr) return false;
  std::fputs("\nActual values of the variables:\n", file);
  for (const KLPKVariable& variable : model.getVariables()) {
    const double value =
        std::fabs(variable.solutionFound) < kPrintedZero ? 0.0 : variable.solutionFound;
    std::fprintf(file, "%-20s%13g\n", variable.variableName.c_str(), value);
  }
  return std::fclose(file) == 0;
}
