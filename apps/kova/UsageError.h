#pragma once

#include <stdexcept>

// A command line the program cannot act on: an unknown command or option, a missing or malformed
// value. The program prints its text with a pointer to --help and ends with the usage status.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
