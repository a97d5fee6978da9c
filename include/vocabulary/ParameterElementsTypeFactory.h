#pragma once

#include "vocabulary/EnumExpressionTypeFactory.h"

// How the node of a formula spreads its children over elements, as the formula dialog shows it.
// Nodes outside the three families have no parameter kind; their kind has an empty name.
enum class ParameterElementsType : int32_t {
  severalExpressionsOnOneElement = 0,
  oneExpressionForEachElement = 1,
  singleExpressionAppliedToEachElement = 2,
  none = 3,
};

class ParameterElementsTypeFactory {
 public:
  static const EnumTable<Enum<ParameterElementsType>, ParameterElementsType>& parameterTypes();
  // The parameter kind of a node of type.
  static const Enum<ParameterElementsType>& makeExpressionTypeEnum(ExpressionType type);
};
