#include "optimization/expression/SquareRootExpression.h"

#include <cmath>
#include <utility>

SquareRootExpression::SquareRootExpression(std::weak_ptr<ExpressionDefinition> parent,
                                           std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::squareRoot),
          std::move(parent), std::move(name), std::move(description)) {}

double SquareRootExpression::interpret(Context context) const {
  return std::sqrt(evaluate(rootingExpression, context));
}

std::string SquareRootExpression::render(bool general) const {
  return "\\sqrt{" + text(rootingExpression, general) + "}";
}

std::string SquareRootExpression::getPreVisualization() const { return render(false); }

std::string SquareRootExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> SquareRootExpression::getVectorOfExpressionDefinitions() const {
  return {rootingExpression};
}

void SquareRootExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                               ExpressionPtr newChild) {
  replaceIfSame(rootingExpression, oldChild, newChild);
}
