#include "OptimisationRun.h"

#include <filesystem>
#include <stdexcept>

#include "FrontTable.h"
#include "OpenProject.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/database/SaveProject.h"

void OptimisationRun::prepare(Scenario& scenario, const CommandLine& line,
                              const OpenProject& project) {
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
  const auto* optimisation = dynamic_cast<const RuleOptimizationScenario*>(&scenario);
  if (!optimisation) return;
  FrontTable(*optimisation, false).printTable(console.out);
  if (line.has("no-save")) return;
  if (!SaveProject::save(project.path().string(), nullptr)) {
    throw std::runtime_error(project.path().string() +
                             ": could not be written; the front found is not stored");
  }
}
