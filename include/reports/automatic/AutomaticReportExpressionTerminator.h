#pragma once

#include <string>

#include "reports/automatic/AutomaticReportExpression.h"

// A leaf: a number, or a name (of an element or of a kind of series) given to a call. A name
// written in double quotes keeps the quotes out of its text.
class AutomaticReportExpressionTerminator : public AutomaticReportExpression {
 public:
  // A number and the text it was read from.
  AutomaticReportExpressionTerminator(double number, std::string text, std::size_t position);
  // A name.
  AutomaticReportExpressionTerminator(std::string name, std::size_t position);

  AutomaticReportExpressionType getExpressionType() const override;
  bool isValid() const override { return !text.empty(); }
  // The number. Throws "position N: \"<name>\" is neither a number nor a call" for a name.
  double calculate(const AutomaticReportRun& run) const override;
  std::string getLabel() const override { return text; }
  // A number as it was written; a name in double quotes.
  std::string print() const override;
  void release() override {}
  std::vector<const AutomaticReportExpression*> children() const override { return {}; }

  bool isNumber() const { return number; }
  // The number's text, or the name.
  const std::string& getText() const { return text; }

 private:
  bool number;
  double value;
  std::string text;
};
