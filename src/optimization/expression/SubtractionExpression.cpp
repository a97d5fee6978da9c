#include "optimization/expression/SubtractionExpression.h"

#include <utility>

SubtractionExpression::SubtractionExpression(std::weak_ptr<ExpressionDefinition> parent,
                                             std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::subtraction),
          std::move(parent), std::move(name), std::move(description)) {}

double SubtractionExpression::interpret(Context context) const {
  return evaluate(firstExpression, context) - evaluate(secondExpression, context);
}

std::string SubtractionExpression::render(bool general) const {
  return "(" + text(firstExpression, general) + "-" + text(secondExpression, general) + ")";
}

std::string SubtractionExpression::getPreVisualization() const { return render(false); }

std::string SubtractionExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> SubtractionExpression::getVectorOfExpressionDefinitions() const {
  return {firstExpression, secondExpression};
}

void SubtractionExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                ExpressionPtr newChild) {
  replaceIfSame(firstExpression, oldChild, newChild);
  replaceIfSame(secondExpression, oldChild, newChild);
}
