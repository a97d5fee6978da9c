#include "optimization/expression/SeveralFunctionsExpression.h"

#include <stdexcept>
#include <utility>

std::vector<ExpressionPtr> SeveralFunctionsExpression::getVectorOfExpressionDefinitions() const {
  return expressions;
}

void SeveralFunctionsExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                     ExpressionPtr newChild) {
  for (ExpressionPtr& slot : expressions) replaceIfSame(slot, oldChild, newChild);
}

void SeveralFunctionsExpression::addExpression(ExpressionPtr child, unsigned int elementID) {
  expressions.push_back(std::move(child));
  elementIDs.push_back(elementID);
}

void SeveralFunctionsExpression::changeExpression(std::size_t index, ExpressionPtr child) {
  if (index >= expressions.size()) {
    throw std::invalid_argument(
        "SeveralFunctionsExpression::changeExpression invalid call function");
  }
  expressions[index] = std::move(child);
}

void SeveralFunctionsExpression::changeIDInIndex(std::size_t index, unsigned int elementID) {
  if (index >= elementIDs.size()) {
    throw std::invalid_argument(
        "SeveralFunctionsExpression::changeIDInIndex invalid call function");
  }
  elementIDs[index] = elementID;
}

void SeveralFunctionsExpression::removeLastExpression() {
  if (expressions.empty()) {
    throw std::invalid_argument(
        "SeveralFunctionsExpression::removeLastExpression invalid call function");
  }
  expressions.pop_back();
  if (!elementIDs.empty()) elementIDs.pop_back();
}

std::vector<double> SeveralFunctionsExpression::valuesPerElement(const Context& context,
                                                                 const char* countText) const {
  if (expressions.size() != context.getElements().size()) {
    throw std::invalid_argument(countText);
  }
  std::vector<double> result;
  result.reserve(expressions.size());
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    result.push_back(evaluate(expressions[i], context.withSingleElement(context.getElements()[i])));
  }
  return result;
}

std::string SeveralFunctionsExpression::joined(const std::string& prefix,
                                               const std::string& separator,
                                               const std::string& suffix, bool general) const {
  std::string result = prefix;
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    if (i > 0) result += separator;
    result += text(expressions[i], general);
  }
  return result + suffix;
}
