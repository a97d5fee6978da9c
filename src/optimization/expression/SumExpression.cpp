#include "optimization/expression/SumExpression.h"

#include <utility>

#include "common/VectorStatistics.h"

SumExpression::SumExpression(std::weak_ptr<ExpressionDefinition> parent, std::string name,
                             std::string description)
    : SingleElementExpression(
          EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType::sum), std::move(parent),
          std::move(name), std::move(description)) {}

double SumExpression::interpret(Context context) const {
  return VectorStatistics::sum(values(context));
}

std::string SumExpression::getPreVisualization() const { return joined("({", "}+{", "})", false); }

std::string SumExpression::getGeneralFormat() const { return joined("({", "}+{", "})", true); }
