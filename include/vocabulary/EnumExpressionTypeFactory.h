#pragma once

#include "vocabulary/Enum.h"
#include "vocabulary/EnumTable.h"

// The kinds of node of a user's formula, numbered as project files store them.
enum class ExpressionType : int32_t {
  constant = 0,
  sum = 1,
  subtraction = 2,
  multiplication = 3,
  multiplicationByMinusOne = 4,
  division = 5,
  potentiation = 6,
  exponentiation = 7,
  squareRoot = 8,
  radiciation = 9,
  logarithm = 10,
  factorial = 11,
  serie = 12,
  minimum = 13,
  maximum = 14,
  mean = 15,
  median = 16,
  sampleVariance = 17,
  populationVariance = 18,
  sampleStandardDeviation = 19,
  populationStandardDeviation = 20,
  sumWithSeveralContexts = 21,
  subtractionWithTwoContexts = 22,
  multiplicationWithTwoContexts = 23,
  divisionWithTwoContexts = 24,
  summation = 25,
  meanWithSeveralContexts = 26,
  medianWithSeveralContexts = 27,
  minimumWithSeveralContexts = 28,
  maximumWithSeveralContexts = 29,
  sampleVarianceWithSeveralContexts = 30,
  populationVarianceWithSeveralContexts = 31,
  sampleStandardDeviationWithSeveralContexts = 32,
  populationStandardDeviationWithSeveralContexts = 33,
};

// The display names of the node kinds, which users see in the formula dialog. A statistic over
// several elements shows the name of the one over a single element; lookup by name finds the
// latter.
class EnumExpressionTypeFactory {
 public:
  static const EnumTable<Enum<ExpressionType>, ExpressionType>& expressionTypes();
  // Throws std::invalid_argument for a value outside the vocabulary.
  static const Enum<ExpressionType>& makeExpressionTypeEnum(ExpressionType type);
};
