#include "reports/GraphvizSceneryGeneratorFactory.h"

#include <functional>
#include <map>
#include <stdexcept>

#include "core/Scenario.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "reports/GraphvizScenarioGenerator.h"

namespace {

using Maker = std::function<void(const std::filesystem::path&, const std::shared_ptr<Scenario>&)>;

const std::map<ScenarioType, Maker>& makers() {
  static const std::map<ScenarioType, Maker> table = {
      {ScenarioType::priorityOptimizer, GraphvizSceneryGeneratorFactory::makePriority},
      {ScenarioType::ruleSimulator, GraphvizSceneryGeneratorFactory::makeRule},
      {ScenarioType::ruleOptimizer, GraphvizSceneryGeneratorFactory::makeOptRule},
      {ScenarioType::guaranteeCurve, GraphvizSceneryGeneratorFactory::makeGuaranteeCurve},
      {ScenarioType::systemGuaranteeCurve,
       GraphvizSceneryGeneratorFactory::makeSystemGuaranteeCurve},
  };
  return table;
}

}  // namespace

void GraphvizSceneryGeneratorFactory::make(const std::filesystem::path& path,
                                           const std::shared_ptr<Scenario>& scenario) {
  if (!scenario) {
    throw std::invalid_argument("GraphvizSceneryGeneratorFactory::make(): invalid scenario");
  }
  const auto found = makers().find(scenario->getScenarioType().getType());
  if (found == makers().end()) {
    throw std::invalid_argument("GraphvizSceneryGeneratorFactory::make(): invalid scenarioType");
  }
  found->second(path, scenario);
}

void GraphvizSceneryGeneratorFactory::makeRule(const std::filesystem::path& path,
                                               const std::shared_ptr<Scenario>& scenario) {
  GraphvizScenarioGenerator::generateFile(path, *scenario);
}

void GraphvizSceneryGeneratorFactory::makeOptRule(const std::filesystem::path& path,
                                                  const std::shared_ptr<Scenario>& scenario) {
  GraphvizScenarioGenerator::generateFile(path, *scenario);
}

void GraphvizSceneryGeneratorFactory::makePriority(const std::filesystem::path& path,
                                                   const std::shared_ptr<Scenario>& scenario) {
  GraphvizScenarioGenerator::generateFileWithPriority(path, *scenario);
}

void GraphvizSceneryGeneratorFactory::makeGuaranteeCurve(
    const std::filesystem::path& path, const std::shared_ptr<Scenario>& scenario) {
  const auto curve = std::dynamic_pointer_cast<GuaranteeCurveScenario>(scenario);
  if (!curve) {
    throw std::invalid_argument(
        "GraphvizSceneryGeneratorFactory::makeGuaranteeCurve(): not a guarantee-curve scenario");
  }
  GraphvizScenarioGenerator::generateFileWithGuaranteeCurve(path, *curve);
}

void GraphvizSceneryGeneratorFactory::makeSystemGuaranteeCurve(
    const std::filesystem::path& path, const std::shared_ptr<Scenario>& scenario) {
  const auto system = std::dynamic_pointer_cast<SystemGuaranteeCurveScenario>(scenario);
  if (!system) {
    throw std::invalid_argument(
        "GraphvizSceneryGeneratorFactory::makeSystemGuaranteeCurve(): not a system "
        "guarantee-curve scenario");
  }
  GraphvizScenarioGenerator::generateFileWithSystemGuaranteeCurve(path, *system);
}
