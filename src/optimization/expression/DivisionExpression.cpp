#include "optimization/expression/DivisionExpression.h"

#include <cmath>
#include <stdexcept>
#include <utility>

DivisionExpression::DivisionExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                       std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::division),
          std::move(parent), std::move(name), std::move(description)) {}

double DivisionExpression::interpret(Context context) const {
  const double divisor = evaluate(denominator, context);
  if (std::fabs(divisor) <= zeroTolerance) {
    throw std::invalid_argument("DivisionExpression::interpret: division by zero");
  }
  return evaluate(numerator, context) / divisor;
}

std::string DivisionExpression::getPreVisualization() const {
  return "(\\frac{" + text(numerator, false) + "}{" + text(denominator, false) + "})";
}

std::string DivisionExpression::getGeneralFormat() const {
  return "\\frac{" + text(numerator, true) + "}{" + text(denominator, true) + "}";
}

std::vector<ExpressionPtr> DivisionExpression::getVectorOfExpressionDefinitions() const {
  return {numerator, denominator};
}

void DivisionExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                             ExpressionPtr newChild) {
  replaceIfSame(numerator, oldChild, newChild);
  replaceIfSame(denominator, oldChild, newChild);
}
