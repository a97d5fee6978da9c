#include "optimization/expression/DivisionWithTwoElementsExpression.h"

#include <cmath>
#include <stdexcept>
#include <utility>

DivisionWithTwoElementsExpression::DivisionWithTwoElementsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : TwoFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                 ExpressionType::divisionWithTwoContexts),
                             std::move(parent), std::move(name), std::move(description)) {}

double DivisionWithTwoElementsExpression::interpret(Context context) const {
  requireTwoElements(context, "DivisionWithTwoContextsExpression::interpret invalid element count");
  const double divisor = second(context);
  if (std::fabs(divisor) <= zeroTolerance) {
    throw std::invalid_argument("DivisionWithTwoContextsExpression::interpret: division by zero");
  }
  return first(context) / divisor;
}

std::string DivisionWithTwoElementsExpression::render(bool general) const {
  return "\\frac{" + text(getFirstExpression(), general) + "}{" +
         text(getSecondExpression(), general) + "}";
}

std::string DivisionWithTwoElementsExpression::getPreVisualization() const { return render(false); }

std::string DivisionWithTwoElementsExpression::getGeneralFormat() const { return render(true); }
