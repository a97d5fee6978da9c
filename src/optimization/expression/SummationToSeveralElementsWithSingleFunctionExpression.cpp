#include "optimization/expression/SummationToSeveralElementsWithSingleFunctionExpression.h"

#include <stdexcept>
#include <utility>

SummationToSeveralElementsWithSingleFunctionExpression::
    SummationToSeveralElementsWithSingleFunctionExpression(
        std::weak_ptr<ExpressionDefinition> parent, std::string name, std::string description)
    : ElementStoreExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::summation),
          std::move(parent), std::move(name), std::move(description)) {}

double SummationToSeveralElementsWithSingleFunctionExpression::interpret(Context context) const {
  const std::vector<std::shared_ptr<Element>>& elements = context.getElements();
  if (elements.empty()) {
    throw std::invalid_argument(
        "SummationToSeveralElementsExpression::interpret invalid element count");
  }
  // The caller fills the elements from the ids; a list of another length was not made from them.
  if (elements.size() != elementIDs.size()) {
    throw std::invalid_argument(
        "SummationToSeveralElementsWithSingleFunctionExpression::interpret invalid size");
  }
  double total = 0.0;
  for (const std::shared_ptr<Element>& element : elements) {
    total += evaluate(expression, context.withSingleElement(element));
  }
  return total;
}

std::string SummationToSeveralElementsWithSingleFunctionExpression::render(bool general) const {
  return "\\left(\\sum_{}^{Elementos} {" + text(expression, general) + "}\\right)";
}

std::string SummationToSeveralElementsWithSingleFunctionExpression::getPreVisualization() const {
  return render(false);
}

std::string SummationToSeveralElementsWithSingleFunctionExpression::getGeneralFormat() const {
  return render(true);
}

std::vector<ExpressionPtr>
SummationToSeveralElementsWithSingleFunctionExpression::getVectorOfExpressionDefinitions() const {
  return {expression};
}

void SummationToSeveralElementsWithSingleFunctionExpression::updateChieldPointer(
    const ExpressionPtr& oldChild, ExpressionPtr newChild) {
  replaceIfSame(expression, oldChild, newChild);
}
