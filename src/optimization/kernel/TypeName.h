#pragma once

#include <cxxabi.h>

#include <cstdlib>
#include <string>
#include <typeinfo>

// The readable name of a dynamic type, as the kernel's messages print it ("Real", not "4Real").
inline std::string kernelTypeName(const std::type_info& type) {
  int status = 0;
  char* demangled = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
  std::string name = (status == 0 && demangled != nullptr) ? demangled : type.name();
  std::free(demangled);
  return name;
}
