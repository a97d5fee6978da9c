#pragma once

#include <string>

// The identification of a reservoir in an owner's register.
struct InstitutionalID {
  int id = 0;
  std::string owner;
};
