#pragma once

#include <filesystem>
#include <memory>

class Scenario;

// Writes the Graphviz drawing of a scenario with the generator of its kind:
//   0 priorities            makePriority GraphvizScenarioGenerator::generateFileWithPriority 1
//   rules                 makeRule                  GraphvizScenarioGenerator::generateFile 2 rule
//   optimisation     makeOptRule               GraphvizScenarioGenerator::generateFile 3 guarantee
//   curve       makeGuaranteeCurve        ...::generateFileWithGuaranteeCurve 4 system guarantee
//   makeSystemGuaranteeCurve  ...::generateFileWithSystemGuaranteeCurve
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
