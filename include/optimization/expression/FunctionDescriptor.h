#pragma once

#include <string>

#include "vocabulary/FunctionEnumTypesCreator.h"

// A text read as a call name(argument): the parts found and where its parentheses stand. An index
// of -1 means the parenthesis was not found.
struct FunctionDescriptor {
  std::string name;
  std::string argument;
  int openIndex = -1;
  int closeIndex = -1;
  Enum<FunctionEnumType> type;
};
