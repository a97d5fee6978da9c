#include "optimization/kernel/KernelException.h"

#include <iostream>

void KernelException::raise(const std::string& line) {
  std::cout << line << std::endl;
  throw KernelException(line);
}
