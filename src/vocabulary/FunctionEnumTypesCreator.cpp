#include "vocabulary/FunctionEnumTypesCreator.h"

const std::vector<Enum<FunctionEnumType>>&
FunctionEnumTypesCreator::getVectorOfFunctionEnumTypes() {
  using F = FunctionEnumType;
  static const std::vector<Enum<FunctionEnumType>> types{
      {F::sin, "Sin"},
      {F::cos, "Cos"},
      {F::tang, "Tang"},
      {F::cot, "Cot"},
      {F::notIdentified, "Not identifyed"},
  };
  return types;
}
