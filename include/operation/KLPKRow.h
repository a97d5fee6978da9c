#pragma once

#include <string>
#include <vector>

#include "operation/KLPKVariable.h"

// A row of the in-memory programme: a sum of coefficients times columns compared, by its kind of
// bound, with a value that is held in upper whatever the kind.
struct KLPKRow {
  std::string rowName;
  int typeOfBound = kFreeBound;
  double lower = 0.0;             // hm³
  double upper = 0.0;             // hm³
  std::vector<int> variablesIDs;  // 0-based columns
  std::vector<double> coefs;
};
