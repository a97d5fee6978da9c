#include "SolutionCommand.h"

#include "ExitStatus.h"
#include "FrontTable.h"
#include "Interrupt.h"
#include "OpenProject.h"
#include "OptimisationRun.h"
#include "UsageError.h"
#include "managers/AutomatedScenarioBuilder.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "scenario/RuleScenario.h"
#include "scenario/ScenarioManager.h"

namespace {

// The index under which the manager keeps a new scenario: after every present one.
unsigned int nextIndex() {
  const auto& sceneries = ScenarioManager::getInstance().getSceneries();
  return sceneries.empty() ? 0 : sceneries.rbegin()->first + 1;
}

}  // namespace

Command SolutionCommand::describe() {
  return {"solution",
          "kova solution P.sjson --scenario NAME --row I",
          "make the rule scenario of one row of a front or of a guarantee curve",
          "Makes the rule scenario \"NAME-SOL-I\" out of row I of the stored front of the rule\n"
          "optimisation NAME (the rows 'kova front' prints): the same network and period, run\n"
          "continuously, each optimisable rule replaced by the simulation rule that the row's\n"
          "decision variables give; 'kova run' then reproduces the row's objective values. For\n"
          "a guarantee curve NAME it makes \"NAME-GUA-I\", in which each reservoir of the curve\n"
          "releases its flow of row I ('kova curve') constantly. The scenario is saved into the\n"
          "project.\n"
          "Exit status: 0 made, 2 usage or file error (no such row, the scenario exists), 3\n"
          "cancelled.\n",
          {{"scenario", "row"}, {}, {}, 1, 1},
          run};
}

int SolutionCommand::run(const CommandLine& line, Console& console) {
  Interrupt::Guard interruptible;
  OpenProject project(line.positional(0), nullptr, OpenProject::Access::readWrite);
  const auto scenario = project.scenario(line.required("scenario"));
  if (!line.has("row")) throw UsageError("option --row is required");
  if (dynamic_cast<const SystemGuaranteeCurveScenario*>(scenario.get())) {
    throw UsageError("scenario \"" + scenario->getName() +
                     "\" is a system guarantee curve, which keeps the flow of its out reservoir "
                     "but not the rules upstream that gave it: no rule scenario is made from it");
  }
  const auto* curve = dynamic_cast<const GuaranteeCurveScenario*>(scenario.get());
  const std::size_t rows =
      curve ? curve->getExecutionGuaranteeCurve().getGuaranteeStr().values.size()
            : FrontTable::optimisationOf(*scenario).getMatrixOfSolutions().size();
  const unsigned long row = line.number("row", 0, 0);
  if (row >= rows) {
    throw UsageError("option --row: scenario \"" + scenario->getName() + "\" has " +
                     std::to_string(rows) + " row(s) in its stored " + (curve ? "curve" : "front") +
                     (rows ? ", rows 0 to " + std::to_string(rows - 1) : std::string()));
  }
  const std::string name = scenario->getName() + (curve ? "-GUA-" : "-SOL-") + std::to_string(row);
  for (const auto& other : project.scenarios()) {
    if (other->getName() == name) {
      throw UsageError("the project already has a scenario named \"" + name + "\"");
    }
  }
  const auto goOn = [](long, long) { return !Interrupt::requested(); };
  const auto index = static_cast<unsigned int>(row);
  const auto made =
      curve ? AutomatedScenarioBuilder::makeRuleScenarioFromGuaranteeCurve(*curve, index, goOn)
            : AutomatedScenarioBuilder::makeRuleScenarioFromOptimization(
                  FrontTable::optimisationOf(*scenario), index, goOn);
  if (!made) return exitCancelled;
  ScenarioManager::getInstance().addScenery(nextIndex(), made);
  OptimisationRun::storeOutput(project, "scenario " + name);
  console.out << name << ": made from row " << row << " of \"" << scenario->getName()
              << "\" and saved\n";
  return exitOk;
}
