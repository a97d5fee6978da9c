#include "optimization/expression/MultiplicationExpression.h"

#include <utility>

MultiplicationExpression::MultiplicationExpression(std::weak_ptr<ExpressionDefinition> parent,
                                                   std::string name, std::string description)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::multiplication),
          std::move(parent), std::move(name), std::move(description)) {}

double MultiplicationExpression::interpret(Context context) const {
  return evaluate(firstExpression, context) * evaluate(secondExpression, context);
}

std::string MultiplicationExpression::render(bool general) const {
  return "(" + text(firstExpression, general) + "*" + text(secondExpression, general) + ")";
}

std::string MultiplicationExpression::getPreVisualization() const { return render(false); }

std::string MultiplicationExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> MultiplicationExpression::getVectorOfExpressionDefinitions() const {
  return {firstExpression, secondExpression};
}

void MultiplicationExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                   ExpressionPtr newChild) {
  replaceIfSame(firstExpression, oldChild, newChild);
  replaceIfSame(secondExpression, oldChild, newChild);
}
