#include "optimization/OptimizationAlgorithmType.h"

#include <map>
#include <stdexcept>

namespace {

const std::map<OptimizationAlgorithmType, std::string>& names() {
  static const std::map<OptimizationAlgorithmType, std::string> table = {
      {OptimizationAlgorithmType::smpso, "SMPSO"},
      {OptimizationAlgorithmType::omopso, "OMOPSO"},
      {OptimizationAlgorithmType::pso, "PSO"},
  };
  return table;
}

}  // namespace

const std::string& OptimizationAlgorithmTypeNames::nameOf(OptimizationAlgorithmType type) {
  return names().at(type);
}

OptimizationAlgorithmType OptimizationAlgorithmTypeNames::typeOf(const std::string& name) {
  for (const auto& [type, text] : names()) {
    if (text == name) return type;
  }
  throw std::invalid_argument(
      "getOptimizationAlgorithmTypeByString(): Invalid optimization algorithm type");
}
