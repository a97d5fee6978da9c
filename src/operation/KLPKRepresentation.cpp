#include "operation/KLPKRepresentation.h"

#include <lpsolve/lp_lib.h>

#include <cstdio>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "common/StringUtils.h"

namespace {

// lp_solve takes names as mutable C strings.
std::vector<char> cString(const std::string& text) {
  std::vector<char> result(text.begin(), text.end());
  result.push_back('\0');
  return result;
}

// Goals and slacks rest on lp_solve's own bounds; every other column gets its bounds as rows.
bool hasBoundRows(const std::string& name) {
  return !StringUtils::endsWith(name, "volGoal") && !StringUtils::endsWith(name, "_s");
}

int constraintType(int typeOfBound) {
  switch (typeOfBound) {
    case kFixedBound:
      return EQ;
    case kUpperBound:
      return LE;
    case kLowerBound:
      return GE;
    default:
      return -1;
  }
}

bool addSingleTermRow(lprec* lp, int column, int type, double value) {
  double one = 1.0;
  int colno = column + 1;
  return add_constraintex(lp, 1, &one, &colno, type, value) == TRUE;
}

template <typename Items>
auto& at(Items& items, int index) {
  if (index < 0 || index >= static_cast<int>(items.size())) {
    throw std::invalid_argument("The index is out of bounds");
  }
  return items[static_cast<std::size_t>(index)];
}

}  // namespace

KLPKRepresentation::~KLPKRepresentation() { deleteLPrec(); }

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

int KLPKRepresentation::verbosity() const {
  return klpkTerminalOutput == KLPK_ON ? NORMAL : NEUTRAL;
}

void KLPKRepresentation::deleteLPrec() {
  if (lp != nullptr) delete_lp(lp);
  lp = nullptr;
}

// Row values are cut at the near-maximum double, which lp_solve reads as infinite.
bool KLPKRepresentation::addModelRows(lprec* target) const {
  const double clamp = NumericalUtils::getNearMaxDouble();
  std::vector<int> colno;
  for (const KLPKRow& row : rows) {
    const int type = constraintType(row.typeOfBound);
    if (type < 0) continue;
    colno.assign(row.variablesIDs.begin(), row.variablesIDs.end());
    for (int& column : colno) ++column;
    const double value = row.upper > clamp ? clamp : row.upper;
    if (add_constraintex(target, static_cast<int>(colno.size()),
                         const_cast<double*>(row.coefs.data()), colno.data(), type,
                         value) != TRUE) {
      return false;
    }
  }
  return true;
}

// The bounds of a column as rows: at most its upper value unless that is "no limit", then at
// least its lower value. A fixed column uses its value for both, and an upper-bounded one 0.0
// below.
bool KLPKRepresentation::addBoundRows(lprec* target) const {
  const double clamp = NumericalUtils::getNearMaxDouble();
  for (int column = 0; column < getNumberOfVariables(); ++column) {
    const KLPKVariable& variable = variables[static_cast<std::size_t>(column)];
    if (!hasBoundRows(variable.variableName)) continue;
    double lower = variable.lower;
    double upper = variable.upper;
    if (variable.typeOfBound == kFixedBound) lower = upper;
    if (variable.typeOfBound == kUpperBound) lower = 0.0;
    if (variable.typeOfBound == kLowerBound) upper = NumericalUtils::getMaxDouble();
    if (upper < clamp && !addSingleTermRow(target, column, LE, upper)) return false;
    if (!addSingleTermRow(target, column, GE, lower)) return false;
  }
  return true;
}

// The rows are added in row mode, bound rows last, and the objective after them: the programme
// is the same as when the bound rows follow the objective, and lp_solve builds it in one pass.
lprec* KLPKRepresentation::produceLPrecPointerUsingMemory() const {
  lprec* made = make_lp(0, getNumberOfVariables());
  if (made == nullptr) return nullptr;
  set_verbose(made, verbosity());
  for (int column = 0; column < getNumberOfVariables(); ++column) {
    std::vector<char> name = cString(variables[static_cast<std::size_t>(column)].variableName);
    set_col_name(made, column + 1, name.data());
  }
  set_add_rowmode(made, TRUE);
  const bool complete = addModelRows(made) && addBoundRows(made);
  set_add_rowmode(made, FALSE);
  if (complete) {
    std::vector<int> colno;
    std::vector<double> values;
    for (int column = 0; column < getNumberOfVariables(); ++column) {
      if (objective[static_cast<std::size_t>(column)] == 0.0) continue;
      colno.push_back(column + 1);
      values.push_back(objective[static_cast<std::size_t>(column)]);
    }
    set_obj_fnex(made, static_cast<int>(colno.size()), values.data(), colno.data());
  }
  if (klpkOptDirectionFlag == KLPK_MAX) {
    set_maxim(made);
  } else {
    set_minim(made);
  }
  set_verbose(made, verbosity());
  return made;
}

int KLPKRepresentation::executeSimplex() {
  deleteLPrec();
  lp = produceLPrecPointerUsingMemory();
  if (lp == nullptr || solve(lp) != OPTIMAL) return 1;
  readSolution();
  return 0;
}

// lp_solve keeps the columns in the order they were made, so column j is variable j.
void KLPKRepresentation::readSolution() {
  valueOfOptimizationFound = get_objective(lp);
  REAL* values = nullptr;
  get_ptr_variables(lp, &values);
  for (int column = 0; column < get_Ncolumns(lp); ++column) {
    variables[static_cast<std::size_t>(column)].solutionFound = values[column];
  }
}

bool KLPKRepresentation::writeLp(const std::string& fileName) const {
  if (lp == nullptr) return false;
  std::vector<char> name = cString(fileName);
  return write_lp(lp, name.data()) == TRUE;
}

bool KLPKRepresentation::printSolution(const std::string& fileName) const {
  if (lp == nullptr) return false;
  FILE* file = std::fopen(fileName.c_str(), "w");
  if (file == nullptr) return false;
  set_outputstream(lp, file);
  print_solution(lp, 1);
  set_outputstream(lp, nullptr);
  std::fclose(file);
  return true;
}
