#pragma once

#include <limits>
#include <string>

// The kinds of bound of rows and columns of the in-memory programme, by the numbers of the
// GLPK-like interface that the model layer imitates.
enum KLPKBoundType : int {
  kFreeBound = 1,    // no bound: a row of this kind is not handed to the solver
  kLowerBound = 2,   // at least the value
  kUpperBound = 3,   // at most the value
  kDoubleBound = 4,  // between lower and upper
  kFixedBound = 5,   // exactly the value
};

// A column of the in-memory programme: a volume of one period, hm³. A new column is at least 0.0
// and has no upper bound.
struct KLPKVariable {
  std::string variableName;
  int typeOfBound = kLowerBound;
  double lower = 0.0;                                 // hm³
  double upper = std::numeric_limits<double>::max();  // hm³
  double solutionFound = 0.0;  // hm³, its value in the last optimal solution
};
