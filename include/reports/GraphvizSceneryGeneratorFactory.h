#pragma once

#include <filesystem>
#include <memory>

class Scenario;

// Writes the Graphviz drawing of a scenario with the generator of its kind: a scenario by
// priorities (0) through makePriority and GraphvizScenarioGenerator::generateFileWithPriority; by
// rules (1) through makeRule and a rule optimisation (2) through makeOptRule, both with
// GraphvizScenarioGenerator::generateFile; a guarantee curve (3) through makeGuaranteeCurve and
// generateFileWithGuaranteeCurve; a system guarantee curve (4) through makeSystemGuaranteeCurve
// and generateFileWithSystemGuaranteeCurve.
class GraphvizSceneryGeneratorFactory {
 public:
  // Throws std::invalid_argument "GraphvizSceneryGeneratorFactory::make(): invalid scenario" for
  // a null scenario, "GraphvizSceneryGeneratorFactory::make(): invalid scenarioType" for a type
  // outside the table, and whatever the generator throws.
  static void make(const std::filesystem::path& path, const std::shared_ptr<Scenario>& scenario);

  static void makeRule(const std::filesystem::path& path,
                       const std::shared_ptr<Scenario>& scenario);
  static void makeOptRule(const std::filesystem::path& path,
                          const std::shared_ptr<Scenario>& scenario);
  static void makePriority(const std::filesystem::path& path,
                           const std::shared_ptr<Scenario>& scenario);
  // The two curve makers throw std::invalid_argument
  // "GraphvizSceneryGeneratorFactory::makeGuaranteeCurve(): not a guarantee-curve scenario" (and
  // "...::makeSystemGuaranteeCurve(): not a system guarantee-curve scenario") when the scenario
  // is not of that class.
  static void makeGuaranteeCurve(const std::filesystem::path& path,
                                 const std::shared_ptr<Scenario>& scenario);
  static void makeSystemGuaranteeCurve(const std::filesystem::path& path,
                                       const std::shared_ptr<Scenario>& scenario);
};
