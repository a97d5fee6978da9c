#include "optimization/expression/RadiciationExpression.h"

#include <cmath>
#include <stdexcept>
#include <utility>

RadiciationExpression::RadiciationExpression(std::weak_ptr<ExpressionDefinition> parent,
                                             std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::radiciation),
          std::move(parent), std::move(name), std::move(description)) {}

double RadiciationExpression::interpret(Context context) const {
  if (index == 0)
    throw std::invalid_argument("RadiciationExpression::interpret: invalid parameter");
  return std::pow(evaluate(rootingExpression, context), 1.0 / index);
}

std::string RadiciationExpression::render(bool general) const {
  return "\\sqrt[" + std::to_string(index) + "]{" + text(rootingExpression, general) + "}";
}

std::string RadiciationExpression::getPreVisualization() const { return render(false); }

std::string RadiciationExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> RadiciationExpression::getVectorOfExpressionDefinitions() const {
  return {rootingExpression};
}

void RadiciationExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                ExpressionPtr newChild) {
  replaceIfSame(rootingExpression, oldChild, newChild);
}
