#include "operation/KLPKRepresentation.h"

#include <limits>
#include <stdexcept>
#include <utility>

#include "operation/LpSolveSolver.h"

namespace {

// The index of name in items, through an index that may also hold names of earlier programmes.
template <typename Items, typename Name>
int indexOf(const std::unordered_map<std::string, int>& index, const Items& items,
            const std::string& name, Name nameOf) {
  const auto it = index.find(name);
  if (it == index.end() || it->second >= static_cast<int>(items.size())) return -1;
  return nameOf(items[static_cast<std::size_t>(it->second)]) == name ? it->second : -1;
}

// Appends an item named name, reusing the storage of one that an earlier erase() set aside.
template <typename Item>
Item& append(std::vector<Item>& items, std::vector<Item>& spare) {
  if (spare.empty()) return items.emplace_back();
  items.push_back(std::move(spare.back()));
  spare.pop_back();
  return items.back();
}

void remember(std::unordered_map<std::string, int>& index, const std::string& name, int at,
              int found) {
  if (found < 0) index.insert_or_assign(name, at);
}

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

// The rows and columns, with their names and terms, are set aside rather than freed, and the
// name indices kept: the next programme is most often made of the same names again.
void KLPKRepresentation::erase() {
  for (KLPKRow& row : rows) spareRows.push_back(std::move(row));
  for (KLPKVariable& variable : variables) spareVariables.push_back(std::move(variable));
  rows.clear();
  variables.clear();
  objective.clear();
}

int KLPKRepresentation::findVariable(const std::string& name) const {
  return indexOf(
      variableIndex, variables, name,
      [](const KLPKVariable& variable) -> const std::string& { return variable.variableName; });
}

int KLPKRepresentation::findRow(const std::string& name) const {
  return indexOf(rowIndex, rows, name,
                 [](const KLPKRow& row) -> const std::string& { return row.rowName; });
}

int KLPKRepresentation::addVariable(const std::string& name) {
  const int index = getNumberOfVariables();
  const int found = findVariable(name);
  KLPKVariable& variable = append(variables, spareVariables);
  variable.variableName = name;
  variable.typeOfBound = kLowerBound;
  variable.lower = 0.0;
  variable.upper = std::numeric_limits<double>::max();
  variable.solutionFound = 0.0;
  objective.push_back(0.0);
  remember(variableIndex, name, index, found);
  return index;
}

int KLPKRepresentation::addRow(const std::string& name) {
  const int index = getNumberOfRows();
  const int found = findRow(name);
  KLPKRow& row = append(rows, spareRows);
  row.rowName = name;
  row.typeOfBound = kFreeBound;
  row.lower = 0.0;
  row.upper = 0.0;
  row.variablesIDs.clear();
  row.coefs.clear();
  remember(rowIndex, name, index, found);
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
