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
  return typeOf(name, "getOptimizationAlgorithmTypeByString");
}

OptimizationAlgorithmType OptimizationAlgorithmTypeNames::systemCurveTypeOf(
    const std::string& name) {
  return typeOf(name, "getSystemGuaranteeCurveAlgorithmTypeByString");
}

OptimizationAlgorithmType OptimizationAlgorithmTypeNames::typeOf(const std::string& name,
                                                                 const std::string& reader) {
  for (const auto& [type, text] : names()) {
    if (text == name) return type;
  }
  throw std::invalid_argument(reader + "(): Invalid optimization algorithm type");
}
