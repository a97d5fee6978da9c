#include "optimization/expression/MultiplicationByMinusOneExpression.h"

#include <utility>

MultiplicationByMinusOneExpression::MultiplicationByMinusOneExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : ExpressionDefinition(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                               ExpressionType::multiplicationByMinusOne),
                           std::move(parent), std::move(name), std::move(description)) {}

double MultiplicationByMinusOneExpression::interpret(Context context) const {
  return -evaluate(expressionToBeMultiplied, context);
}

std::string MultiplicationByMinusOneExpression::render(bool general) const {
  return "-(" + text(expressionToBeMultiplied, general) + ")";
}

std::string MultiplicationByMinusOneExpression::getPreVisualization() const {
  return render(false);
}

std::string MultiplicationByMinusOneExpression::getGeneralFormat() const { return render(true); }

std::vector<ExpressionPtr> MultiplicationByMinusOneExpression::getVectorOfExpressionDefinitions()
    const {
  return {expressionToBeMultiplied};
}

void MultiplicationByMinusOneExpression::updateChieldPointer(const ExpressionPtr& oldChild,
                                                             ExpressionPtr newChild) {
  replaceIfSame(expressionToBeMultiplied, oldChild, newChild);
}
