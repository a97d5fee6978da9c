#include "optimization/expression/LogarithmExpression.h"

#include <cmath>
#include <stdexcept>
#include <utility>

LogarithmExpression::LogarithmExpression(std::weak_ptr<ExpressionDefinition> parent,
                                         std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::logarithm),
          std::move(parent), std::move(name), std::move(description)) {}

double LogarithmExpression::interpret(Context context) const {
  const double baseValue = evaluate(base, context);
  const double argument = evaluate(logarithming, context);
  // A base of zero passes on purpose: formulas saved with it keep their value, ln(x) / -inf.
  if (baseValue < 0.0 || baseValue == 1.0 || argument <= 0.0) {
    throw std::invalid_argument("LogarithmExpression::interpret invalid operands");
  }
  return std::log(argument) / std::log(baseValue);
}

std::string LogarithmExpression::render(bool general) const {
  return "(\\log_{" + text(base, general) + "} " + text(logarithming, general) + ")";
}

std::string LogarithmExpression::getPreVisualization() const { return render(false); }

std::string LogarithmExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> LogarithmExpression::getVectorOfExpressionDefinitions() const {
  return {logarithming, base};
}

void LogarithmExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                              ExpressionPtr newChild) {
  replaceIfSame(logarithming, oldChild, newChild);
  replaceIfSame(base, oldChild, newChild);
}
