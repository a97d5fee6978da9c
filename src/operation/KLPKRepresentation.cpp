#include "operation/KLPKRepresentation.h"

#include <stdexcept>
#include <utility>

#include "operation/LpSolveSolver.h"

namespace {

template <typename Items>
auto& at(Items& items, int index) {
  if (index < 0 || index >= static_cast<int>(items.size())) {
    throw std::invalid_argument("The index is out of bounds");
  }
  return items[static_cast<std::size_t>(index)];
}

}  // namespace

KLPKRepresentation::KLPKRepresentation() : solver(std::make_unique<LpSolveSolver>()) {}

KLPKRepresentation::~KLPKRepresentation() = default;

void KLPKRepresentation::erase() {
  rows.clear();
  variables.clear();
  objective.clear();
  rowIndex.clear();
  variableIndex.clear();
}

int KLPKRepresentation::findVariable(const std::string& name) const {
  auto it = variableIndex.find(name);
  return it == variableIndex.end() ? -1 : it->second;
}

int KLPKRepresentation::findRow(const std::string& name) const {
  auto it = rowIndex.find(name);
  return it == rowIndex.end() ? -1 : it->second;
}

int KLPKRepresentation::addVariable(const std::string& name) {
  const int index = getNumberOfVariables();
  variables.emplace_back();
  variables.back().variableName = name;
  objective.push_back(0.0);
  variableIndex.emplace(name, index);
  return index;
}

int KLPKRepresentation::addRow(const std::string& name) {
  const int index = getNumberOfRows();
  rows.emplace_back();
  rows.back().rowName = name;
  rowIndex.emplace(name, index);
  return index;
}

KLPKVariable& KLPKRepresentation::getVariable(int index) { return at(variables, index); }

const KLPKVariable& KLPKRepresentation::getVariable(int index) const {
  return at(variables, index);
}

KLPKRow& KLPKRepresentation::getRow(int index) { return at(rows, index); }

const KLPKRow& KLPKRepresentation::getRow(int index) const { return at(rows, index); }

double KLPKRepresentation::getObjectiveCoefficient(int column) const {
  return at(objective, column);
}

void KLPKRepresentation::setObjectiveCoefficient(int column, double value) {
  at(objective, column) = value;
}

void KLPKRepresentation::useSolver(std::unique_ptr<LinearProgramSolver> next) {
  if (!next) throw std::invalid_argument("KLPKRepresentation::useSolver(): no solver");
  solver = std::move(next);
  solved = false;
}

int KLPKRepresentation::executeSimplex() {
  if (!solver->solve(*this, solution, valueOfOptimizationFound)) return 1;
  for (std::size_t column = 0; column < solution.size() && column < variables.size(); ++column) {
    variables[column].solutionFound = solution[column];
  }
  solved = true;
  return 0;
}

void KLPKRepresentation::adoptKeptModel(KLPKRepresentation& other) {
  if (&other == this) return;
  std::swap(solver, other.solver);
  other.solved = false;
  solver->beginChain();
}

bool KLPKRepresentation::writeLp(const std::string& fileName) const {
  return solved && solver->writeLp(*this, fileName);
}

bool KLPKRepresentation::printSolution(const std::string& fileName) const {
  return solved && solver->printSolution(*this, fileName);
}
