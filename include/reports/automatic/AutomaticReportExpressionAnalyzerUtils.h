#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "reports/automatic/AutomaticReportExpression.h"

// Reads a report expression from its text.
//
// The text is arithmetic over numbers and calls. A number is written with digits, an optional
// decimal point and an optional exponent: 12, 0.5, .5, 1.5e-3 (an "e" or "E" and its sign inside
// a number are not an operator). A call is a report metric of an element,
// "Escassez total em hm3(Irrigação Norte)", or a series operation over one series of an
// element, "Max(Sobradinho, Volume final)", the operations being Min, Max, Sum, Average,
// VariancePopulation, VarianceSample, StdDeviationPopulation and StdDeviationSample. A name that
// holds an operator, a parenthesis or a comma is written in double quotes: "Juazeiro-Petrolina".
// Blanks around numbers, names and operators do not count.
//
// Parentheses bind first, "*" and "/" closer than "+" and "-", and operators of one strength
// from left to right: the text is cut at the last operator of the weakest strength outside
// parentheses, and each side is read again. A minus where an operand begins (at the start, after
// an operator or an opening parenthesis) negates that operand: before a number it makes a
// negative number, before anything else it stands for 0 minus the operand. A plus there is an
// error.
class AutomaticReportExpressionAnalyzerUtils {
 public:
  // How deep operators, signs and calls may nest (parentheses alone do not count): deeper texts
  // are refused rather than read at the risk of the stack.
  static constexpr std::size_t kMaximumDepth = 200;

  // The tree of text. Throws std::invalid_argument with one line "position N: <what is wrong or
  // what was expected>", N counting the characters of text from 1: an empty text, an unbalanced
  // parenthesis or quote, an operator without an operand, a number out of range, an unknown
  // metric or operation, a wrong number of arguments, an argument that is not a name, an unknown
  // kind of series, a division by the number 0, a stray character, a text nested too deep.
  static std::unique_ptr<AutomaticReportExpression> strToExp(const std::string& text);
};
