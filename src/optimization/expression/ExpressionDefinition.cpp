#include "optimization/expression/ExpressionDefinition.h"

#include <stdexcept>
#include <utility>

ExpressionDefinition::ExpressionDefinition(Enum<ExpressionType> type,
                                           std::weak_ptr<ExpressionDefinition> parent,
                                           std::string name, std::string description)
    : expressionType(std::move(type)),
      parent(std::move(parent)),
      name(std::move(name)),
      description(std::move(description)) {}

bool ExpressionDefinition::validate() const {
  for (const ExpressionPtr& child : getVectorOfExpressionDefinitions()) {
    if (!child || !child->validate()) return false;
  }
  return true;
}

void ExpressionDefinition::replaceIfSame(ExpressionPtr& slot, const ExpressionPtr& oldChild,
                                         const ExpressionPtr& newChild) {
  if (slot == oldChild) slot = newChild;
}

double ExpressionDefinition::evaluate(const ExpressionPtr& child, const Context& context) const {
  if (!child) {
    throw std::invalid_argument("ExpressionDefinition::interpret: \"" + name +
                                "\" has a missing operand");
  }
  return child->interpret(context);
}

std::string ExpressionDefinition::text(const ExpressionPtr& child, bool general) {
  if (!child) return "";
  return general ? child->getGeneralFormat() : child->getPreVisualization();
}
