#include "optimization/expression/MultiplicationWithTwoContextsExpression.h"

#include <utility>

MultiplicationWithTwoContextsExpression::MultiplicationWithTwoContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : TwoFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                 ExpressionType::multiplicationWithTwoContexts),
                             std::move(parent), std::move(name), std::move(description)) {}

double MultiplicationWithTwoContextsExpression::interpret(Context context) const {
  requireTwoElements(context,
                     "MultiplicationWithTwoContextsExpression::interpret invalid element count");
  return first(context) * second(context);
}

std::string MultiplicationWithTwoContextsExpression::render(bool general) const {
  return "(" + text(getFirstExpression(), general) + "*" + text(getSecondExpression(), general) +
         ")";
}

std::string MultiplicationWithTwoContextsExpression::getPreVisualization() const {
  return render(false);
}

std::string MultiplicationWithTwoContextsExpression::getGeneralFormat() const {
  return render(true);
}
