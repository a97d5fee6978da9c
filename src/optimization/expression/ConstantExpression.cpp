#include "optimization/expression/ConstantExpression.h"

#include <sstream>
#include <utility>

ConstantExpression::ConstantExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                                       std::string description, double value)
    : ExpressionDefinition(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::constant),
          std::move(parent), std::move(name), std::move(description)),
      value(value) {}

double ConstantExpression::interpret(Context) const { return value; }

std::string ConstantExpression::getPreVisualization() const { return getGeneralFormat(); }

std::string ConstantExpression::getGeneralFormat() const {
  std::ostringstream out;
  out << value;
  return out.str();
}

std::vector<ExpressionPtr> ConstantExpression::getVectorOfExpressionDefinitions() const {
  return {};
}

void ConstantExpression::updateChieldPointer(const ExpressionPtr&, ExpressionPtr) {}
