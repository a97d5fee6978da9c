#include "operation/LpSolveSolver.h"

#include <lpsolve/lp_lib.h>

#include <chrono>
#include <cstdio>
#include <utility>

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

int verbosity(const KLPKRepresentation& model) {
  return model.getTerminalOutput() == KLPKRepresentation::KLPK_ON ? NORMAL : NEUTRAL;
}

void setDirection(const KLPKRepresentation& model, lprec* target) {
  if (model.getOptDirection() == KLPKRepresentation::KLPK_MAX) {
    set_maxim(target);
  } else {
    set_minim(target);
  }
}

}  // namespace

LpSolveSolver::~LpSolveSolver() { deleteLPrec(); }

void LpSolveSolver::deleteLPrec() {
  if (lp != nullptr) delete_lp(lp);
  lp = nullptr;
}

void LpSolveSolver::collectHandedRows(const KLPKRepresentation& model) {
  std::size_t count = 0;
  collectModelRows(model, count);
  collectBoundRows(model, count);
  pending.resize(count);
}

LpSolveSolver::HandedRow& LpSolveSolver::nextHandedRow(std::size_t& count) {
  if (count == pending.size()) pending.emplace_back();
  return pending[count++];
}

// lp_solve sorts the terms of a row it receives by column, in the caller's arrays; they are
// handed over sorted, so that what it kept can be compared with the next programme.
void LpSolveSolver::sortByColumn(HandedRow& row) {
  for (std::size_t next = 1; next < row.colno.size(); ++next) {
    for (std::size_t at = next; at > 0 && row.colno[at - 1] > row.colno[at]; --at) {
      std::swap(row.colno[at - 1], row.colno[at]);
      std::swap(row.coefs[at - 1], row.coefs[at]);
    }
  }
}

// Row values are cut at the near-maximum double, which lp_solve reads as infinite.
void LpSolveSolver::collectModelRows(const KLPKRepresentation& model, std::size_t& count) {
  const double clamp = NumericalUtils::getNearMaxDouble();
  for (const KLPKRow& row : model.getRows()) {
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
void LpSolveSolver::collectBoundRows(const KLPKRepresentation& model, std::size_t& count) {
  const double clamp = NumericalUtils::getNearMaxDouble();
  const auto addSingleTerm = [&](int column, int type, double value) {
    HandedRow& target = nextHandedRow(count);
    target.type = type;
    target.value = value;
    target.colno.assign(1, column + 1);
    target.coefs.assign(1, 1.0);
  };
  for (int column = 0; column < model.getNumberOfVariables(); ++column) {
    const KLPKVariable& variable = model.getVariables()[static_cast<std::size_t>(column)];
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
bool LpSolveSolver::hasUnitCoefficientsOnly(const std::vector<HandedRow>& rows) {
  for (const HandedRow& row : rows) {
    for (double coefficient : row.coefs) {
      if (coefficient != 1.0 && coefficient != -1.0) return false;
    }
  }
  return true;
}

bool LpSolveSolver::keptModelFits(const KLPKRepresentation& model) const {
  if (lp == nullptr || !keptModelReusable || handed.size() != pending.size() ||
      model.getObjective() != handedObjective || model.getOptDirection() != handedDirection) {
    return false;
  }
  if (static_cast<int>(handedNames.size()) != model.getNumberOfVariables()) return false;
  for (std::size_t column = 0; column < handedNames.size(); ++column) {
    if (handedNames[column] != model.getVariables()[column].variableName) return false;
  }
  for (std::size_t row = 0; row < pending.size(); ++row) {
    if (pending[row].colno != handed[row].colno || pending[row].coefs != handed[row].coefs) {
      return false;
    }
  }
  return true;
}

void LpSolveSolver::updateKeptModel() {
  for (std::size_t row = 0; row < pending.size(); ++row) {
    const int rownr = static_cast<int>(row) + 1;
    if (pending[row].type != handed[row].type) set_constr_type(lp, rownr, pending[row].type);
    if (pending[row].value != handed[row].value) set_rh(lp, rownr, pending[row].value);
  }
  default_basis(lp);
}

// The rows are added in row mode, bound rows last, and the objective after them: the programme
// is the same as when the bound rows follow the objective, and lp_solve builds it in one pass.
// A model that lp_solve took only in part is not kept for reuse.
lprec* LpSolveSolver::produceLPrecPointerUsingMemory(const KLPKRepresentation& model) {
  keptModelReusable = false;
  const int columns = model.getNumberOfVariables();
  lprec* made = make_lp(0, columns);
  if (made == nullptr) return nullptr;
  set_verbose(made, verbosity(model));
  for (int column = 0; column < columns; ++column) {
    std::vector<char> name =
        cString(model.getVariables()[static_cast<std::size_t>(column)].variableName);
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
    for (int column = 0; column < columns; ++column) {
      const double coefficient = model.getObjective()[static_cast<std::size_t>(column)];
      if (coefficient == 0.0) continue;
      colno.push_back(column + 1);
      values.push_back(coefficient);
    }
    complete =
        set_obj_fnex(made, static_cast<int>(colno.size()), values.data(), colno.data()) == TRUE;
  }
  setDirection(model, made);
  set_verbose(made, verbosity(model));
  if (complete) {
    keptModelReusable = hasUnitCoefficientsOnly(pending);
    handedDirection = model.getOptDirection();
    handed.swap(pending);
    handedObjective = model.getObjective();
    handedNames.clear();
    for (const KLPKVariable& variable : model.getVariables()) {
      handedNames.push_back(variable.variableName);
    }
  }
  return made;
}

bool LpSolveSolver::solve(const KLPKRepresentation& model, std::vector<double>& solution,
                          double& objective) {
  collectHandedRows(model);
  if (keptModelFits(model)) {
    updateKeptModel();
    handed.swap(pending);
  } else {
    deleteLPrec();
    lp = produceLPrecPointerUsingMemory(model);
  }
  if (lp == nullptr) return false;
  const auto start = std::chrono::steady_clock::now();
  const int status = ::solve(lp);
  countSolve(std::chrono::steady_clock::now() - start);
  if (status != OPTIMAL) {
    keptModelReusable = false;
    return false;
  }
  readSolution(solution, objective);
  return true;
}

// lp_solve keeps the columns in the order they were made, so column j is variable j.
void LpSolveSolver::readSolution(std::vector<double>& solution, double& objective) const {
  objective = get_objective(lp);
  REAL* values = nullptr;
  get_ptr_variables(lp, &values);
  solution.assign(values, values + get_Ncolumns(lp));
}

bool LpSolveSolver::writeLp(const KLPKRepresentation&, const std::string& fileName) {
  if (lp == nullptr) return false;
  std::vector<char> name = cString(fileName);
  return write_lp(lp, name.data()) == TRUE;
}

bool LpSolveSolver::printSolution(const KLPKRepresentation&, const std::string& fileName) {
  if (lp == nullptr) return false;
  FILE* file = std::fopen(fileName.c_str(), "w");
  if (file == nullptr) return false;
  set_outputstream(lp, file);
  print_solution(lp, 1);
  set_outputstream(lp, nullptr);
  std::fclose(file);
  return true;
}

bool LpSolveSolver::writeUnsolvedLp(const KLPKRepresentation& model, const std::string& fileName) {
  LpSolveSolver writer;
  writer.collectHandedRows(model);
  writer.lp = writer.produceLPrecPointerUsingMemory(model);
  return writer.writeLp(model, fileName);
}
