#pragma once

#include <memory>
#include <string>
#include <vector>

#include "operation/LinearProgramSolver.h"

// Makes the solver of the priority programmes by its key: "lpsolve" or "clp" (the project's
// choice is ConfigurationHeader::getLinearProgramSolver()).
class LinearProgramSolverFactory {
 public:
  // Throws std::invalid_argument "LinearProgramSolverFactory::make(): invalid solver <key>,
  // expected clp or lpsolve" for another key.
  static std::unique_ptr<LinearProgramSolver> make(const std::string& key);
  // Every key, in alphabetical order.
  static std::vector<std::string> keys();
  static bool has(const std::string& key);
  // "clp or lpsolve": the keys as a message names them.
  static std::string keysText();
};
