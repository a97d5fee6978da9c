#include "vocabulary/ParameterElementsTypeFactory.h"

const EnumTable<Enum<ParameterElementsType>, ParameterElementsType>&
ParameterElementsTypeFactory::parameterTypes() {
  using P = ParameterElementsType;
  static const EnumTable<Enum<ParameterElementsType>, ParameterElementsType> table({
      {P::severalExpressionsOnOneElement, "Diversas expr sobre apenas um elemento"},
      {P::oneExpressionForEachElement, "Uma expr para cada elemento"},
      {P::singleExpressionAppliedToEachElement, "Unica expr aplicada em cada elemento"},
      {P::none, ""},
  });
  return table;
}

namespace {

ParameterElementsType parameterTypeOf(ExpressionType type) {
  using X = ExpressionType;
  using P = ParameterElementsType;
  switch (type) {
    case X::sum:
    case X::minimum:
    case X::maximum:
    case X::mean:
    case X::median:
    case X::sampleVariance:
    case X::populationVariance:
    case X::sampleStandardDeviation:
    case X::populationStandardDeviation:
      return P::severalExpressionsOnOneElement;
    case X::sumWithSeveralContexts:
    case X::subtractionWithTwoContexts:
    case X::multiplicationWithTwoContexts:
    case X::divisionWithTwoContexts:
    case X::meanWithSeveralContexts:
    case X::medianWithSeveralContexts:
    case X::minimumWithSeveralContexts:
    case X::maximumWithSeveralContexts:
    case X::sampleVarianceWithSeveralContexts:
    case X::populationVarianceWithSeveralContexts:
    case X::sampleStandardDeviationWithSeveralContexts:
    case X::populationStandardDeviationWithSeveralContexts:
      return P::oneExpressionForEachElement;
    case X::summation:
      return P::singleExpressionAppliedToEachElement;
    default:
      return P::none;
  }
}

}  // namespace

const Enum<ParameterElementsType>& ParameterElementsTypeFactory::makeExpressionTypeEnum(
    ExpressionType type) {
  return *parameterTypes().findByType(parameterTypeOf(type));
}
