#pragma once

#include <vector>

#include "vocabulary/Enum.h"

// The functions a formula's text may call by name; notIdentified stands for any other name.
enum class FunctionEnumType : int32_t {
  sin = 0,
  cos = 1,
  tang = 2,
  cot = 3,
  notIdentified = 4,
};

class FunctionEnumTypesCreator {
 public:
  // Every function in id order, notIdentified ("Not identifyed") last.
  static const std::vector<Enum<FunctionEnumType>>& getVectorOfFunctionEnumTypes();
};
