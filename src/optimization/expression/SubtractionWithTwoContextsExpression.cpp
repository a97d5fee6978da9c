#include "optimization/expression/SubtractionWithTwoContextsExpression.h"

#include <utility>

SubtractionWithTwoContextsExpression::SubtractionWithTwoContextsExpression(
    std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : TwoFunctionsExpression(EnumExpressionTypeFactory::makeExpressionTypeEnum(
                                 ExpressionType::subtractionWithTwoContexts),
                             std::move(parent), std::move(name), std::move(description)) {}

double SubtractionWithTwoContextsExpression::interpret(Context context) const {
  requireTwoElements(context,
                     "SubtractionWithSeveralContextsExpression::interpret invalid element count");
  return first(context) - second(context);
}

std::string SubtractionWithTwoContextsExpression::render(bool general) const {
  return "(" + text(getFirstExpression(), general) + "-" + text(getSecondExpression(), general) +
         ")";
}

std::string SubtractionWithTwoContextsExpression::getPreVisualization() const {
  return render(false);
}

std::string SubtractionWithTwoContextsExpression::getGeneralFormat() const { return render(true); }
