#pragma once

#include <string>

#include "optimization/expression/FunctionDescriptor.h"

// Reads texts such as "Sin(x)" as a call of one of the known functions.
class FunctionDescriptorUtils {
 public:
  // The name is what stands before the first "(", the argument what stands between it and a ")"
  // that ends the text (or the end of the text when no ")" ends it). The type is the known
  // function of exactly that name, or "Not identifyed".
  static FunctionDescriptor makeAnalisysOfStringAsFunction(const std::string& text);
  // Whether the text was a call of a known function: an opening parenthesis before the closing
  // one, and a known name.
  static bool isAFunction(const FunctionDescriptor& descriptor);
};
