#pragma once

#include <stdexcept>
#include <string>

// The one fault of the metaheuristic kernel. Every fault that would otherwise end the process
// prints its line on standard output and then throws this, so that a host linking the library
// survives a bad index, an exhausted capacity or a missing comparator.
class KernelException : public std::runtime_error {
 public:
  explicit KernelException(const std::string& message) : std::runtime_error(message) {}

  // Prints line (followed by a newline) on standard output and throws it as a KernelException.
  [[noreturn]] static void raise(const std::string& line);
};
