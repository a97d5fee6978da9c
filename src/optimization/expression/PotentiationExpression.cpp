#include "optimization/expression/PotentiationExpression.h"

#include <cmath>
#include <utility>

PotentiationExpression::PotentiationExpression(std::weak_ptr<ExpressionDefinition> parent,
                                               std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::potentiation),
          std::move(parent), std::move(name), std::move(description)) {}

double PotentiationExpression::interpret(Context context) const {
  return std::pow(evaluate(baseExpression, context), exponent);
}

std::string PotentiationExpression::render(bool general) const {
  return "({" + text(baseExpression, general) + "}^{" + std::to_string(exponent) + "})";
}

std::string PotentiationExpression::getPreVisualization() const { return render(false); }

std::string PotentiationExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> PotentiationExpression::getVectorOfExpressionDefinitions() const {
  return {baseExpression};
}

void PotentiationExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                 ExpressionPtr newChild) {
  replaceIfSame(baseExpression, oldChild, newChild);
}
