#include "operation/KLPKRepresentation.h"

#include <lpsolve/lp_lib.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <utility>

#include "common/NumericalUtils.h"
#include "common/StringUtils.h"

namespace {

std::atomic<unsigned long long> solveCount{0};
std::atomic<unsigned long long> solverNanoseconds{0};

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

void KLPKRepresentation::collectHandedRows() {
  std::size_t count = 0;
  collectModelRows(count);
  collectBoundRows(count);
  pending.resize(count);
}

KLPKRepresentation::HandedRow& KLPKRepresentation::nextHandedRow(std::size_t& count) {
  if (count == pending.size()) pending.emplace_back();
  return pending[count++];
}

// lp_solve sorts the terms of a row it receives by column, in the caller's arrays; they are
// handed over sorted, so that what it kept can be compared with the next programme.
void KLPKRepresentation::sortByColumn(HandedRow& row) {
  for (std::size_t next = 1; next < row.colno.size(); ++next) {
    for (std::size_t at = next; at > 0 && row.colno[at - 1] > row.colno[at]; --at) {
      std::swap(row.colno[at - 1], row.colno[at]);
      std::swap(row.coefs[at - 1], row.coefs[at]);
    }
  }
}

// Row values are cut at the near-maximum double, which lp_solve reads as infinite.
void KLPKRepresentation::collectModelRows(std::size_t& count) {
  const double clamp = NumericalUtils::getNearMaxDouble();
  for (const KLPKRow& row : rows) {
    const int type = constraintType(row.typeOfBound);
    if (type < 0) continue;
    HandedRow& target = nextHandedRow(count);
    target.type = type;
    target.value = row.upper > clamp ? clamp : row.upper;
    target.colno.assign(row.variablesIDs.begin(), row.variablesIDs.end());
    for (int& column : target.colno) ++column;
    target.coefs.assign(row.coefs.begin(), row.coefs.end());
    sortByColumn(target);
  }
}

// The bounds of a column as rows: at most its upper value unless that is "no limit", then at
// least its lower value. A fixed column uses its value for both, and an upper-bounded one 0.0
// below.
void KLPKRepresentation::collectBoundRows(std::size_t& count) {
  const double clamp = NumericalUtils::getNearMaxDouble();
  const auto addSingleTerm = [&](int column, int type, double value) {
    HandedRow& target = nextHandedRow(count);
    target.type = type;
    target.value = value;
    target.colno.assign(1, column + 1);
    target.coefs.assign(1, 1.0);
  };
  for (int column = 0; column < getNumberOfVariables(); ++column) {
    const KLPKVariable& variable = variables[static_cast<std::size_t>(column)];
    if (!hasBoundRows(variable.variableName)) continue;
    double lower = variable.lower;
    double upper = variable.upper;
    if (variable.typeOfBound == kFixedBound) lower = upper;
    if (variable.typeOfBound == kUpperBound) lower = 0.0;
    if (variable.typeOfBound == kLowerBound) upper = NumericalUtils::getMaxDouble();
    if (upper < clamp) addSingleTerm(column, LE, upper);
    addSingleTerm(column, GE, lower);
  }
}

// lp_solve scales a model from its coefficients and objective alone, so a kept model with the
// same ones solves as a new one once its row values and kinds are set and its basis reset. That
// holds to the last bit only where every coefficient is 1 or -1: a network that loses water in
// its links gets scale factors under which a changed row value rounds differently from the same
// value in a new model, so such a network makes a new model for every programme.
bool KLPKRepresentation::hasUnitCoefficientsOnly(const std::vector<HandedRow>& rows) {
  for (const HandedRow& row : rows) {
    for (double coefficient : row.coefs) {
      if (coefficient != 1.0 && coefficient != -1.0) return false;
    }
  }
  return true;
}

bool KLPKRepresentation::keptModelFits() const {
  if (lp == nullptr || !keptModelReusable || handed.size() != pending.size() ||
      objective != handedObjective || klpkOptDirectionFlag != handedDirection) {
    return false;
  }
  if (static_cast<int>(handedNames.size()) != getNumberOfVariables()) return false;
  for (std::size_t column = 0; column < handedNames.size(); ++column) {
    if (handedNames[column] != variables[column].variableName) return false;
  }
  for (std::size_t row = 0; row < pending.size(); ++row) {
    if (pending[row].colno != handed[row].colno || pending[row].coefs != handed[row].coefs) {
      return false;
    }
  }
  return true;
}

void KLPKRepresentation::updateKeptModel() {
  for (std::size_t row = 0; row < pending.size(); ++row) {
    const int rownr = static_cast<int>(row) + 1;
    if (pending[row].type != handed[row].type) set_constr_type(lp, rownr, pending[row].type);
    if (pending[row].value != handed[row].value) set_rh(lp, rownr, pending[row].value);
  }
  default_basis(lp);
}

void KLPKRepresentation::setDirection(lprec* target) const {
  if (klpkOptDirectionFlag == KLPK_MAX) {
    set_maxim(target);
  } else {
    set_minim(target);
  }
}

// The rows are added in row mode, bound rows last, and the objective after them: the programme
// is the same as when the bound rows follow the objective, and lp_solve builds it in one pass.
// A model that lp_solve took only in part is not kept for reuse.
lprec* KLPKRepresentation::produceLPrecPointerUsingMemory() {
  keptModelReusable = false;
  lprec* made = make_lp(0, getNumberOfVariables());
  if (made == nullptr) return nullptr;
  set_verbose(made, verbosity());
  for (int column = 0; column < getNumberOfVariables(); ++column) {
    std::vector<char> name = cString(variables[static_cast<std::size_t>(column)].variableName);
    set_col_name(made, column + 1, name.data());
  }
  set_add_rowmode(made, TRUE);
  bool complete = true;
  for (HandedRow& row : pending) {
    if (add_constraintex(made, static_cast<int>(row.colno.size()), row.coefs.data(),
                         row.colno.data(), row.type, row.value) != TRUE) {
      complete = false;
      break;
    }
  }
  set_add_rowmode(made, FALSE);
  if (complete) {
    std::vector<int> colno;
    std::vector<double> values;
    for (int column = 0; column < getNumberOfVariables(); ++column) {
      if (objective[static_cast<std::size_t>(column)] == 0.0) continue;
      colno.push_back(column + 1);
      values.push_back(objective[static_cast<std::size_t>(column)]);
    }
    complete = set_obj_fnex(made, static_cast<int>(colno.size()), values.data(), colno.data()) ==
               TRUE;
  }
  setDirection(made);
  set_verbose(made, verbosity());
  if (complete) {
    keptModelReusable = hasUnitCoefficientsOnly(pending);
    handedDirection = klpkOptDirectionFlag;
    handed.swap(pending);
    handedObjective = objective;
    handedNames.clear();
    for (const KLPKVariable& variable : variables) handedNames.push_back(variable.variableName);
  }
  return made;
}

int KLPKRepresentation::executeSimplex() {
  collectHandedRows();
  if (keptModelFits()) {
    updateKeptModel();
    handed.swap(pending);
  } else {
    deleteLPrec();
    lp = produceLPrecPointerUsingMemory();
  }
  if (lp == nullptr) return 1;
  const auto start = std::chrono::steady_clock::now();
  const int status = solve(lp);
  solverNanoseconds += static_cast<unsigned long long>(
      std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now() - start)
          .count());
  ++solveCount;
  if (status != OPTIMAL) {
    keptModelReusable = false;
    return 1;
  }
  readSolution();
  return 0;
}

void KLPKRepresentation::adoptKeptModel(KLPKRepresentation& other) {
  if (&other == this) return;
  deleteLPrec();
  std::swap(lp, other.lp);
  keptModelReusable = other.keptModelReusable;
  other.keptModelReusable = false;
  handed.swap(other.handed);
  handedNames.swap(other.handedNames);
  handedObjective.swap(other.handedObjective);
  handedDirection = other.handedDirection;
}

unsigned long long KLPKRepresentation::solvesInProcess() { return solveCount; }

double KLPKRepresentation::solverSecondsInProcess() {
  return static_cast<double>(solverNanoseconds.load()) * 1e-9;
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
