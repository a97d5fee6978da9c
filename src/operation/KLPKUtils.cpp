#include "operation/KLPKUtils.h"

#include <new>
#include <stdexcept>

#include "common/NumericalUtils.h"
#include "core/Node.h"

namespace {

bool carriesWater(const std::shared_ptr<Link>& link) {
  return link->isEnabled() && link->getUpstream()->isEnabled() &&
         link->getDownstream()->isEnabled();
}

int setColumnBounds(KLPKRepresentation* problem, const std::string& name, int type, double lower,
                    double upper) {
  const int column = KLPKUtils::colValue(problem, name);
  KLPKVariable& variable = problem->getVariable(column);
  variable.typeOfBound = type;
  variable.lower = lower;
  variable.upper = upper;
  return column;
}

int setRowBound(KLPKRepresentation* problem, const std::string& name, int type, double value) {
  const int row = KLPKUtils::rowValue(problem, name);
  KLPKRow& target = problem->getRow(row);
  target.typeOfBound = type;
  target.upper = value;
  return row;
}

}  // namespace

KLPKRepresentation* KLPKUtils::slp_create_prob() { return new (std::nothrow) KLPKRepresentation; }

void KLPKUtils::slp_delete_prob(KLPKRepresentation* problem) { delete problem; }

void KLPKUtils::sglp_erase_prob(KLPKRepresentation* problem) { problem->erase(); }

void KLPKUtils::slp_term_out(KLPKRepresentation* problem,
                             KLPKRepresentation::KLPK_TERMINAL_OUTPUT flag) {
  problem->setTerminalOutput(flag);
}

void KLPKUtils::slp_set_prob_name(KLPKRepresentation* problem, const std::string& name) {
  problem->setProblemName(name);
}

void KLPKUtils::slp_set_obj_dir(KLPKRepresentation* problem, int direction) {
  problem->setOptDirection(direction == 2 ? KLPKRepresentation::KLPK_MAX
                                          : KLPKRepresentation::KLPK_MIN);
}

void KLPKUtils::slp_set_obj_coef(KLPKRepresentation* problem, int column, double value) {
  problem->setObjectiveCoefficient(column, value);
}

int KLPKUtils::slp_simplex(KLPKRepresentation* problem) { return problem->executeSimplex(); }

int KLPKUtils::slp_find_col(const KLPKRepresentation* problem, const std::string& name) {
  return problem->findVariable(name);
}

double KLPKUtils::slp_get_col_prim(const KLPKRepresentation* problem, int column) {
  return problem->getVariable(column).solutionFound;
}

void KLPKUtils::slp_set_mat_row(KLPKRepresentation* problem, int row, int count, const int* indexes,
                                const double* values) {
  KLPKRow& target = problem->getRow(row);
  for (int position = 1; position <= count; ++position) {
    if (indexes[position] < 0 || indexes[position] >= problem->getNumberOfVariables()) {
      throw std::invalid_argument("The index is out of bounds");
    }
  }
  target.variablesIDs.assign(indexes + 1, indexes + count + 1);
  target.coefs.assign(values + 1, values + count + 1);
}

bool KLPKUtils::slp_write_lp(const KLPKRepresentation* problem, const std::string& fileName) {
  return problem->writeLp(fileName);
}

bool KLPKUtils::slp_print_sol(const KLPKRepresentation* problem, const std::string& fileName) {
  return problem->printSolution(fileName);
}

int KLPKUtils::colValue(KLPKRepresentation* problem, const std::string& name) {
  const int column = problem->findVariable(name);
  return column >= 0 ? column : problem->addVariable(name);
}

int KLPKUtils::lowColValue(KLPKRepresentation* problem, const std::string& name, double lower) {
  return setColumnBounds(problem, name, kLowerBound, lower, NumericalUtils::getMaxDouble());
}

int KLPKUtils::doubleBounded(KLPKRepresentation* problem, const std::string& name, double lower,
                             double upper) {
  return setColumnBounds(problem, name, kDoubleBound, lower, upper);
}

int KLPKUtils::rowValue(KLPKRepresentation* problem, const std::string& name) {
  const int row = problem->findRow(name);
  return row >= 0 ? row : problem->addRow(name);
}

int KLPKUtils::upRowValue(KLPKRepresentation* problem, const std::string& name, double value) {
  return setRowBound(problem, name, kUpperBound, value);
}

int KLPKUtils::lowRowValue(KLPKRepresentation* problem, const std::string& name, double value) {
  return setRowBound(problem, name, kLowerBound, value);
}

int KLPKUtils::assignRowValue(KLPKRepresentation* problem, const std::string& name, double value) {
  return setRowBound(problem, name, kFixedBound, value);
}

std::string KLPKUtils::oneVar(const std::shared_ptr<Element>& element) {
  return element->getElementType().getLetter() + std::to_string(element->getId());
}

std::string KLPKUtils::twoVar(const std::shared_ptr<Element>& source,
                              const std::shared_ptr<Element>& target) {
  return oneVar(source) + "_" + oneVar(target);
}

std::string KLPKUtils::subject(const KLPKRepresentation* problem) {
  return "r_" + std::to_string(problem->getNumberOfRows());
}

std::vector<VariableInfo> KLPKUtils::makeUpstreamVariables(const std::shared_ptr<Element>& element,
                                                           const Date& date) {
  std::vector<VariableInfo> result;
  for (const auto& link : std::static_pointer_cast<Node>(element)->getUpstreamLinks()) {
    if (!carriesWater(link)) continue;
    const double loss = link->getInputSerie(SerieType::transitLossPercentage)->getValue(date);
    result.push_back(
        {twoVar(link->getUpstream(), link->getDownstream()), 1.0 - loss / 100.0, link});
  }
  return result;
}

std::vector<VariableInfo> KLPKUtils::makeDownstreamVariables(
    const std::shared_ptr<Element>& element) {
  std::vector<VariableInfo> result;
  for (const auto& link : std::static_pointer_cast<Node>(element)->getDownstreamLinks()) {
    if (!carriesWater(link)) continue;
    result.push_back({twoVar(link->getUpstream(), link->getDownstream()), 1.0, link});
  }
  return result;
}
