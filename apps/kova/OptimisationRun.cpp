#include "OptimisationRun.h"

#include <filesystem>
#include <stdexcept>

#include "CurveTable.h"
#include "FrontTable.h"
#include "HostText.h"
#include "OpenProject.h"
#include "UsageError.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "optimization/kernel/PseudoRandom.h"
#include "project/database/SaveProject.h"

namespace {

constexpr unsigned long kMostThreads = 256;

}  // namespace

void OptimisationRun::prepare(Scenario& scenario, const CommandLine& line,
                              const OpenProject& project) {
  if (dynamic_cast<GuaranteeCurveScenario*>(&scenario) && line.has("seed")) {
    ExecutionGuaranteeCurve::setSeed(line.number("seed", 0, 0));
  }
  auto* swarm = dynamic_cast<SwarmScenario*>(&scenario);
  if (!swarm) return;
  if (line.has("seed")) PseudoRandom::setSeed(line.number("seed", 0, 0));
  auto& execution = swarm->getSwarmExecution();
  if (line.has("threads")) {
    // Each thread evaluates on its own copy of the scenario: a mistyped count must not copy it
    // without end.
    const unsigned long threads = line.number("threads", 1, 1);
    if (threads > kMostThreads) {
      throw UsageError("option --threads: at most " + std::to_string(kMostThreads));
    }
    execution.setThreads(static_cast<unsigned int>(threads));
  }
  auto* optimisation = dynamic_cast<RuleOptimizationScenario*>(&scenario);
  if (!optimisation) return;
  const auto folder = std::filesystem::absolute(project.path()).parent_path();
  optimisation->setResultsFolder(line.has("no-save") ? "" : folder.string());
}

void OptimisationRun::storeOutput(const OpenProject& project, const std::string& what) {
  // What is stored is an output: the file keeps the time of its last change of inputs, against
  // which the stored runs of every scenario are judged stale or not.
  const auto inputsChanged = std::filesystem::last_write_time(project.path());
  if (!SaveProject::save(project.path().string(), nullptr)) {
    throw std::runtime_error(
        tr("{1}: could not be written; the {2} is not stored", {project.path().string(), what}));
  }
  std::error_code ignored;
  std::filesystem::last_write_time(project.path(), inputsChanged, ignored);
}

void OptimisationRun::finish(Scenario& scenario, const CommandLine& line,
                             const OpenProject& project, Console& console) {
  if (dynamic_cast<const GuaranteeCurveScenario*>(&scenario) ||
      dynamic_cast<const SystemGuaranteeCurveScenario*>(&scenario)) {
    const CurveTable table = CurveTable::of(scenario);
    table.printTable(console.out);
    table.printFailures(console.err);
    if (!line.has("no-save")) storeOutput(project, tr("curve found"));
  }
  if (const auto* optimisation = dynamic_cast<const RuleOptimizationScenario*>(&scenario)) {
    FrontTable(*optimisation, false).printTable(console.out);
    if (!line.has("no-save")) storeOutput(project, tr("front found"));
  }
}
