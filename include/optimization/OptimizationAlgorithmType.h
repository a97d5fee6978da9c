#pragma once

#include <string>

// The swarms that can optimise rules.
enum class OptimizationAlgorithmType : int { smpso = 0, omopso = 1, pso = 2 };

// The names of the swarms, as the project file writes them: "SMPSO", "OMOPSO", "PSO".
class OptimizationAlgorithmTypeNames {
 public:
  static const std::string& nameOf(OptimizationAlgorithmType type);
  // Throws std::invalid_argument
  // "getOptimizationAlgorithmTypeByString(): Invalid optimization algorithm type" for another name.
  static OptimizationAlgorithmType typeOf(const std::string& name);
  // The same for the swarm of a system guarantee curve; the text of the failure reads
  // "getSystemGuaranteeCurveAlgorithmTypeByString(): Invalid optimization algorithm type".
  static OptimizationAlgorithmType systemCurveTypeOf(const std::string& name);

 private:
  static OptimizationAlgorithmType typeOf(const std::string& name, const std::string& reader);
};
