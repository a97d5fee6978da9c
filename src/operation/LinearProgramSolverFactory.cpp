#include "operation/LinearProgramSolverFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "operation/ClpSolver.h"
#include "operation/LpSolveSolver.h"

namespace {

using Maker = std::function<std::unique_ptr<LinearProgramSolver>()>;

const std::map<std::string, Maker>& makers() {
  static const std::map<std::string, Maker> table = {
      {"clp", [] { return std::make_unique<ClpSolver>(); }},
      {"lpsolve", [] { return std::make_unique<LpSolveSolver>(); }},
  };
  return table;
}

}  // namespace

std::unique_ptr<LinearProgramSolver> LinearProgramSolverFactory::make(const std::string& key) {
  const auto found = makers().find(key);
  if (found == makers().end()) {
    throw std::invalid_argument("LinearProgramSolverFactory::make(): invalid solver " + key +
                                ", expected " + keysText());
  }
  return found->second();
}

std::vector<std::string> LinearProgramSolverFactory::keys() {
  std::vector<std::string> result;
  for (const auto& entry : makers()) result.push_back(entry.first);
  return result;
}

bool LinearProgramSolverFactory::has(const std::string& key) { return makers().count(key) > 0; }

std::string LinearProgramSolverFactory::keysText() {
  std::string text;
  const std::vector<std::string> all = keys();
  for (std::size_t at = 0; at < all.size(); ++at) {
    text += at == 0 ? "" : at + 1 == all.size() ? " or " : ", ";
    text += all[at];
  }
  return text;
}
