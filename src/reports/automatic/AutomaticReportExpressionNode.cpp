#include "reports/automatic/AutomaticReportExpressionNode.h"

#include <stdexcept>

AutomaticReportExpressionNode::AutomaticReportExpressionNode(
    char symbol, std::unique_ptr<AutomaticReportExpression> left,
    std::unique_ptr<AutomaticReportExpression> right, std::size_t position)
    : AutomaticReportExpression(position),
      symbol(symbol),
      left(std::move(left)),
      right(std::move(right)) {
  if (symbol != '+' && symbol != '-' && symbol != '*' && symbol != '/') {
    throw std::invalid_argument("AutomaticReportExpressionNode(): invalid operator");
  }
}

AutomaticReportExpressionType AutomaticReportExpressionNode::getExpressionType() const {
  switch (symbol) {
    case '+':
      return AutomaticReportExpressionType::add;
    case '-':
      return AutomaticReportExpressionType::subtract;
    case '*':
      return AutomaticReportExpressionType::multiply;
    default:
      return AutomaticReportExpressionType::divide;
  }
}

bool AutomaticReportExpressionNode::isValid() const {
  return left && right && left->isValid() && right->isValid();
}

double AutomaticReportExpressionNode::calculate(const AutomaticReportRun& run) const {
  if (!isValid()) fail("the operator \"" + getLabel() + "\" lacks an operand");
  const double a = left->calculate(run);
  const double b = right->calculate(run);
  switch (getExpressionType()) {
    case AutomaticReportExpressionType::add:
      return a + b;
    case AutomaticReportExpressionType::subtract:
      return a - b;
    case AutomaticReportExpressionType::multiply:
      return a * b;
    default:
      if (b == 0.0) fail("division by zero");
      return a / b;
  }
}

std::string AutomaticReportExpressionNode::print() const {
  const std::string a = left ? left->print() : "";
  const std::string b = right ? right->print() : "";
  return "(" + a + " " + symbol + " " + b + ")";
}

void AutomaticReportExpressionNode::release() {
  left.reset();
  right.reset();
}

std::vector<const AutomaticReportExpression*> AutomaticReportExpressionNode::children() const {
  std::vector<const AutomaticReportExpression*> result;
  if (left) result.push_back(left.get());
  if (right) result.push_back(right.get());
  return result;
}
