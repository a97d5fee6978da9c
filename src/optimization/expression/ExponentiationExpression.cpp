#include "optimization/expression/ExponentiationExpression.h"

#include <cmath>
#include <utility>

ExponentiationExpression::ExponentiationExpression(std::weak_ptr<ExpressionDefinition> parent,
                                                   std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::exponentiation),
          std::move(parent), std::move(name), std::move(description)) {}

double ExponentiationExpression::interpret(Context context) const {
  return std::pow(baseConstant, evaluate(exponentExpression, context));
}

std::string ExponentiationExpression::render(bool general) const {
  return "({" + std::to_string(baseConstant) + "}^{" + text(exponentExpression, general) + "})";
}

std::string ExponentiationExpression::getPreVisualization() const { return render(false); }

std::string ExponentiationExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> ExponentiationExpression::getVectorOfExpressionDefinitions() const {
  return {exponentExpression};
}

void ExponentiationExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                   ExpressionPtr newChild) {
  replaceIfSame(exponentExpression, oldChild, newChild);
}
