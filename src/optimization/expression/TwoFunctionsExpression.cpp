#include "optimization/expression/TwoFunctionsExpression.h"

#include <stdexcept>

std::vector<ExpressionPtr> TwoFunctionsExpression::getVectorOfExpressionDefinitions() const {
  return {firstExpression, secondExpression};
}

void TwoFunctionsExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                 ExpressionPtr newChild) {
  replaceIfSame(firstExpression, oldChild, newChild);
  replaceIfSame(secondExpression, oldChild, newChild);
}

void TwoFunctionsExpression::changeIDInIndex(std::size_t index, unsigned int elementID) {
  if (index == 0) {
    firstID = elementID;
  } else if (index == 1) {
    secondID = elementID;
  } else {
    throw std::invalid_argument("TwoFunctionsExpression::changeIDInIndex invalid call function");
  }
}

void TwoFunctionsExpression::requireTwoElements(const Context& context, const char* countText) {
  if (context.getElements().size() != 2) throw std::invalid_argument(countText);
}

double TwoFunctionsExpression::first(const Context& context) const {
  return evaluate(firstExpression, context.withSingleElement(context.getElements()[0]));
}

double TwoFunctionsExpression::second(const Context& context) const {
  return evaluate(secondExpression, context.withSingleElement(context.getElements()[1]));
}
