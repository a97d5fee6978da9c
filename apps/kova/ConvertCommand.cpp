#include "ConvertCommand.h"

#include <map>

#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "OpenProject.h"
#include "OptimisationRun.h"
#include "UsageError.h"
#include "core/Scenario.h"
#include "managers/AutomatedScenarioBuilder.h"

namespace {

const std::map<std::string, ScenarioType>& kinds() {
  static const std::map<std::string, ScenarioType> table = {
      {"priority", ScenarioType::priorityOptimizer},
      {"rule", ScenarioType::ruleSimulator},
      {"optimisation", ScenarioType::ruleOptimizer},
      {"guarantee", ScenarioType::guaranteeCurve},
      {"system-guarantee", ScenarioType::systemGuaranteeCurve}};
  return table;
}

// A scenario by priorities becomes rules from its run: the stored one when there is one.
void loadRunOfPriorities(const OpenProject& project, const std::shared_ptr<Scenario>& scenario,
                         Console& console) {
  if (scenario->getScenarioType().getType() != ScenarioType::priorityOptimizer) return;
  try {
    project.loadLatestResults(scenario);
  } catch (const std::runtime_error&) {
    console.unlessQuiet(console.out)
        << tr("scenario \"{1}\" has no stored run to read: it runs first, to give its releases "
              "and shares",
              {scenario->getName()})
        << '\n';
  }
}

}  // namespace

Command ConvertCommand::describe() {
  return {"convert",
          "kova convert P.sjson --scenario NAME --to "
          "rule|priority|optimisation|guarantee|system-guarantee [--name NEW]",
          tr("make a scenario of another kind from a scenario"),
          HostText::help("convert"),
          {{"scenario", "to", "name"}, {}, {}, 1, 1},
          run};
}

int ConvertCommand::run(const CommandLine& line, Console& console) {
  Interrupt::Guard interruptible;
  const std::string kind = line.required("to");
  const auto target = kinds().find(kind);
  if (target == kinds().end()) {
    throw UsageError(
        tr("option --to: no kind named \"{1}\" (rule, priority, optimisation, "
           "guarantee or system-guarantee)",
           {kind}));
  }
  OpenProject project(line.positional(0), nullptr, OpenProject::Access::readWrite);
  const auto scenario = project.scenario(line.required("scenario"));
  if (scenario->getScenarioType().getType() == target->second) {
    throw UsageError(tr("scenario \"{1}\" is already of kind {2}", {scenario->getName(), kind}));
  }
  const std::string name = line.value("name", scenario->getName() + "-" + kind);
  project.requireFreeName(name);
  loadRunOfPriorities(project, scenario, console);
  const auto goOn = [](long, long) { return !Interrupt::requested(); };
  const auto made =
      AutomatedScenarioBuilder::makeScenarioOfKind(*scenario, target->second, name, goOn);
  if (!made) return exitCancelled;
  project.adopt(made);
  OptimisationRun::storeOutput(project, tr("scenario {1}", {name}));
  console.out << tr("{1}: made from \"{2}\" as a scenario of kind {3} and saved",
                    {name, scenario->getName(), kind})
              << '\n';
  return exitOk;
}
