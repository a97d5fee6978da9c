#include "vocabulary/EnumExpressionTypeFactory.h"

#include <stdexcept>

const EnumTable<Enum<ExpressionType>, ExpressionType>&
EnumExpressionTypeFactory::expressionTypes() {
  using X = ExpressionType;
  static const EnumTable<Enum<ExpressionType>, ExpressionType> table({
      {X::constant, "Constante"},
      {X::sum, "Soma"},
      {X::subtraction, "Subtração"},
      {X::multiplication, "Multiplicação"},
      {X::multiplicationByMinusOne, "Multiplicação por menos um"},
      {X::division, "Divisão"},
      {X::potentiation, "Potenciação"},
      {X::exponentiation, "Exponenciação"},
      {X::squareRoot, "Raiz quadrada"},
      {X::radiciation, "Enésima Raiz"},
      {X::logarithm, "Logaritmo"},
      {X::factorial, "Fatorial"},
      {X::serie, "Serie"},
      {X::minimum, "Mínimo"},
      {X::maximum, "Máximo"},
      {X::mean, "Média"},
      {X::median, "Mediana"},
      {X::sampleVariance, "Variância sobre amostra"},
      {X::populationVariance, "Variância sobre população"},
      {X::sampleStandardDeviation, "Desvio padrão sobre amostra"},
      {X::populationStandardDeviation, "Desvio padrão sobre população"},
      {X::sumWithSeveralContexts, "Soma com vários contextos"},
      {X::subtractionWithTwoContexts, "Subtração com dois contextos"},
      {X::multiplicationWithTwoContexts, "Multiplicação com dois contextos"},
      {X::divisionWithTwoContexts, "Divisão com dois contextos"},
      {X::summation, "Somatório"},
      {X::meanWithSeveralContexts, "Média"},
      {X::medianWithSeveralContexts, "Mediana"},
      {X::minimumWithSeveralContexts, "Mínimo"},
      {X::maximumWithSeveralContexts, "Máximo"},
      {X::sampleVarianceWithSeveralContexts, "Variância sobre amostra"},
      {X::populationVarianceWithSeveralContexts, "Variância sobre população"},
      {X::sampleStandardDeviationWithSeveralContexts, "Desvio padrão sobre amostra"},
      {X::populationStandardDeviationWithSeveralContexts, "Desvio padrão sobre população"},
  });
  return table;
}

const Enum<ExpressionType>& EnumExpressionTypeFactory::makeExpressionTypeEnum(ExpressionType type) {
  const Enum<ExpressionType>* row = expressionTypes().findByType(type);
  if (row == nullptr) {
    throw std::invalid_argument(
        "EnumExpressionTypeFactory::makeExpressionTypeEnum(): value outside the vocabulary");
  }
  return *row;
}
