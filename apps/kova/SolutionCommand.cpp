#include "SolutionCommand.h"

#include "ExitStatus.h"
#include "FrontTable.h"
#include "HostText.h"
#include "Interrupt.h"
#include "OpenProject.h"
#include "OptimisationRun.h"
#include "UsageError.h"
#include "managers/AutomatedScenarioBuilder.h"
#include "optimization/GuaranteeCurveScenario.h"
#include "optimization/RuleOptimizationScenario.h"
#include "optimization/SystemGuaranteeCurveScenario.h"
#include "scenario/RuleScenario.h"

Command SolutionCommand::describe() {
  return {"solution",
          "kova solution P.sjson --scenario NAME --row I",
          tr("make the rule scenario of one row of a front or of a guarantee curve"),
          HostText::help("solution"),
          {{"scenario", "row"}, {}, {}, 1, 1},
          run};
}

int SolutionCommand::run(const CommandLine& line, Console& console) {
  Interrupt::Guard interruptible;
  OpenProject project(line.positional(0), nullptr, OpenProject::Access::readWrite);
  const auto scenario = project.scenario(line.required("scenario"));
  if (!line.has("row")) throw UsageError(tr("option --{1} is required", {"row"}));
  if (dynamic_cast<const SystemGuaranteeCurveScenario*>(scenario.get())) {
    throw UsageError(
        tr("scenario \"{1}\" is a system guarantee curve, which keeps the flow of "
           "its out reservoir but not the rules upstream that gave it: no rule "
           "scenario is made from it",
           {scenario->getName()}));
  }
  const auto* curve = dynamic_cast<const GuaranteeCurveScenario*>(scenario.get());
  const std::size_t rows =
      curve ? curve->getExecutionGuaranteeCurve().getGuaranteeStr().values.size()
            : FrontTable::optimisationOf(*scenario).getMatrixOfSolutions().size();
  const unsigned long row = line.number("row", 0, 0);
  if (row >= rows) {
    const std::vector<std::string> values = {scenario->getName(), std::to_string(rows)};
    throw UsageError(
        (curve ? tr("option --row: scenario \"{1}\" has {2} row(s) in its stored curve", values)
               : tr("option --row: scenario \"{1}\" has {2} row(s) in its stored front", values)) +
        (rows ? tr(", rows 0 to {1}", {std::to_string(rows - 1)}) : std::string()));
  }
  const std::string name = scenario->getName() + (curve ? "-GUA-" : "-SOL-") + std::to_string(row);
  project.requireFreeName(name);
  const auto goOn = [](long, long) { return !Interrupt::requested(); };
  const auto index = static_cast<unsigned int>(row);
  const auto made =
      curve ? AutomatedScenarioBuilder::makeRuleScenarioFromGuaranteeCurve(*curve, index, goOn)
            : AutomatedScenarioBuilder::makeRuleScenarioFromOptimization(
                  FrontTable::optimisationOf(*scenario), index, goOn);
  if (!made) return exitCancelled;
  project.adopt(made);
  OptimisationRun::storeOutput(project, tr("scenario {1}", {name}));
  console.out << tr("{1}: made from row {2} of \"{3}\" and saved",
                    {name, std::to_string(row), scenario->getName()})
              << '\n';
  return exitOk;
}
