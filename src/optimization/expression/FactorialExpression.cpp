#include "optimization/expression/FactorialExpression.h"

#include <cmath>
#include <utility>

FactorialExpression::FactorialExpression(std::weak_ptr<ExpressionDefinition> parent,
                                         std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::factorial),
          std::move(parent), std::move(name), std::move(description)) {}

double FactorialExpression::interpret(Context context) const {
  // A fractional part is dropped by stopping at 2, so 4.5! is 4.5 * 3.5 * 2.5; the loop also
  // stops once the product is infinite, which a huge operand would reach long before 2.
  double x = evaluate(rootingExpression, context);
  double product = 1.0;
  while (x >= 2.0 && !std::isinf(product)) {
    product *= x;
    x -= 1.0;
  }
  return product;
}

std::string FactorialExpression::render(bool general) const {
  return "(" + text(rootingExpression, general) + ")!";
}

std::string FactorialExpression::getPreVisualization() const { return render(false); }

std::string FactorialExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> FactorialExpression::getVectorOfExpressionDefinitions() const {
  return {rootingExpression};
}

void FactorialExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                              ExpressionPtr newChild) {
  replaceIfSame(rootingExpression, oldChild, newChild);
}
