#include "optimization/expression/FunctionDescriptorUtils.h"

FunctionDescriptor FunctionDescriptorUtils::makeAnalisysOfStringAsFunction(
    const std::string& text) {
  FunctionDescriptor descriptor;
  const auto open = text.find('(');
  if (open != std::string::npos) descriptor.openIndex = static_cast<int>(open);
  const bool closed = !text.empty() && text.back() == ')';
  descriptor.closeIndex = static_cast<int>(closed ? text.size() - 1 : text.size());
  if (descriptor.openIndex != -1) {
    descriptor.name = text.substr(0, open);
    descriptor.argument = text.substr(open + 1, descriptor.closeIndex - descriptor.openIndex - 1);
  }
  const auto& functions = FunctionEnumTypesCreator::getVectorOfFunctionEnumTypes();
  descriptor.type = functions.back();
  for (const auto& function : functions) {
    if (function.getName() == descriptor.name) {
      descriptor.type = function;
      break;
    }
  }
  return descriptor;
}

bool FunctionDescriptorUtils::isAFunction(const FunctionDescriptor& descriptor) {
  if (descriptor.openIndex == -1) return false;
  return descriptor.closeIndex != -1 && descriptor.openIndex < descriptor.closeIndex &&
         !descriptor.name.empty() && descriptor.type.getType() != FunctionEnumType::notIdentified;
}
