#pragma once

#include <memory>

#include "reports/automatic/AutomaticReportExpression.h"

// An arithmetic operator ('+', '-', '*' or '/') over a left and a right operand.
class AutomaticReportExpressionNode : public AutomaticReportExpression {
 public:
  // Throws std::invalid_argument "AutomaticReportExpressionNode(): invalid operator" for any
  // other character. position is the operator's.
  AutomaticReportExpressionNode(char symbol, std::unique_ptr<AutomaticReportExpression> left,
                                std::unique_ptr<AutomaticReportExpression> right,
                                std::size_t position);

  AutomaticReportExpressionType getExpressionType() const override;
  bool isValid() const override;
  // left op right. Throws "position N: division by zero" when the divisor is 0.
  double calculate(const AutomaticReportRun& run) const override;
  std::string getLabel() const override { return std::string(1, symbol); }
  std::string print() const override;
  void release() override;
  std::vector<const AutomaticReportExpression*> children() const override;

  char getSymbol() const { return symbol; }
  const AutomaticReportExpression* getLeft() const { return left.get(); }
  const AutomaticReportExpression* getRight() const { return right.get(); }

 private:
  char symbol;
  std::unique_ptr<AutomaticReportExpression> left;
  std::unique_ptr<AutomaticReportExpression> right;
};
