#pragma once

#include <map>
#include <string>

#include "optimization/kernel/KernelException.h"

// Reads of the untyped parameter maps of operators and algorithms: a pointer to T, or the fallback
// when the name is missing or null.
template <typename T>
T readParameter(const std::map<std::string, void*>& parameters, const std::string& name,
                T fallback) {
  const auto found = parameters.find(name);
  if (found == parameters.end() || found->second == nullptr) return fallback;
  return *static_cast<T*>(found->second);
}

// As above for a parameter without a default: a missing one prints
// "<owner>: parameter <name> not set" and throws KernelException.
template <typename T>
T requireParameter(const std::map<std::string, void*>& parameters, const std::string& name,
                   const std::string& owner) {
  const auto found = parameters.find(name);
  if (found == parameters.end() || found->second == nullptr) {
    KernelException::raise(owner + ": parameter " + name + " not set");
  }
  return *static_cast<T*>(found->second);
}
