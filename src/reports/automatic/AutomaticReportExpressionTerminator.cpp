#include "reports/automatic/AutomaticReportExpressionTerminator.h"

AutomaticReportExpressionTerminator::AutomaticReportExpressionTerminator(double number,
                                                                         std::string text,
                                                                         std::size_t position)
    : AutomaticReportExpression(position), number(true), value(number), text(std::move(text)) {}

AutomaticReportExpressionTerminator::AutomaticReportExpressionTerminator(std::string name,
                                                                         std::size_t position)
    : AutomaticReportExpression(position), number(false), value(0.0), text(std::move(name)) {}

AutomaticReportExpressionType AutomaticReportExpressionTerminator::getExpressionType() const {
  return AutomaticReportExpressionType::terminator;
}

double AutomaticReportExpressionTerminator::calculate(const AutomaticReportRun&) const {
  if (!number) fail("\"" + text + "\" is neither a number nor a call");
  return value;
}

std::string AutomaticReportExpressionTerminator::print() const {
  return number ? text : "\"" + text + "\"";
}
