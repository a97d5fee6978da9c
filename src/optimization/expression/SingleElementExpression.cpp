#include "optimization/expression/SingleElementExpression.h"

#include <stdexcept>
#include <utility>

std::vector<ExpressionPtr> SingleElementExpression::getVectorOfExpressionDefinitions() const {
  return expressions;
}

void SingleElementExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                  ExpressionPtr newChild) {
  for (ExpressionPtr& slot : expressions) replaceIfSame(slot, oldChild, newChild);
}

void SingleElementExpression::setExpressionsCount(std::size_t count) { expressions.resize(count); }

void SingleElementExpression::addExpression(ExpressionPtr child) {
  expressions.push_back(std::move(child));
}

void SingleElementExpression::changeExpression(std::size_t index, ExpressionPtr child) {
  if (index >= expressions.size()) {
    throw std::invalid_argument("SingleElementExpression::changeExpression invalid call function");
  }
  expressions[index] = std::move(child);
}

void SingleElementExpression::removeLastExpression() {
  if (expressions.empty()) {
    throw std::invalid_argument(
        "SingleElementExpression::removeLastExpression invalid call function");
  }
  expressions.pop_back();
}

std::vector<double> SingleElementExpression::valuesOnFirstElement(const Context& context,
                                                                  const char* noElementText,
                                                                  const char* noChildText) const {
  if (context.getElements().empty()) throw std::invalid_argument(noElementText);
  if (expressions.empty()) throw std::invalid_argument(noChildText);
  return values(context.withSingleElement(context.getElements().front()));
}

std::vector<double> SingleElementExpression::values(const Context& context) const {
  std::vector<double> result;
  result.reserve(expressions.size());
  for (const ExpressionPtr& child : expressions) result.push_back(evaluate(child, context));
  return result;
}

std::string SingleElementExpression::joined(const std::string& prefix, const std::string& separator,
                                            const std::string& suffix, bool general) const {
  std::string result = prefix;
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    if (i > 0) result += separator;
    result += text(expressions[i], general);
  }
  return result + suffix;
}
