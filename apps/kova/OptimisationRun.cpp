#include "OptimisationRun.h"

#include <filesystem>
#include <stdexcept>

#include "CurveTable.h"
#include "FrontTable.h"
#include "OpenProject.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/database/SaveProject.h"

namespace {

void storeWith(const OpenProject& project, const std::string& what) {
  if (!SaveProject::save(project.path().string(), nullptr)) {
    throw std::runtime_error(project.path().string() + ": could not be written; the " + what +
                             " found is not stored");
  }
}

}  // namespace

void OptimisationRun::prepare(Scenario& scenario, const CommandLine& line,
                              const OpenProject& project) {
  if (dynamic_cast<GuaranteeCurveScenario*>(&scenario) && line.has("seed")) {
    ExecutionGuaranteeCurve::setSeed(line.number("seed", 0, 0));
  }
  auto* optimisation = dynamic_cast<RuleOptimizationScenario*>(&scenario);
  if (!optimisation) return;
  if (line.has("seed")) PseudoRandom::setSeed(line.number("seed", 0, 0));
  auto& execution = optimisation->getExecutionOptimization();
  if (line.has("threads"))
    execution.setThreads(static_cast<unsigned int>(line.number("threads", 1, 1)));
  const auto folder = std::filesystem::absolute(project.path()).parent_path();
  optimisation->setResultsFolder(line.has("no-save") ? "" : folder.string());
}

void OptimisationRun::finish(Scenario& scenario, const CommandLine& line,
                             const OpenProject& project, Console& console) {
  if (const auto* curve = dynamic_cast<const GuaranteeCurveScenario*>(&scenario)) {
    const CurveTable table(*curve);
    table.printTable(console.out);
    table.printFailures(console.err);
    if (!line.has("no-save")) storeWith(project, "curve");
  }
  if (const auto* optimisation = dynamic_cast<const RuleOptimizationScenario*>(&scenario)) {
    FrontTable(*optimisation, false).printTable(console.out);
    if (!line.has("no-save")) storeWith(project, "front");
  }
}
