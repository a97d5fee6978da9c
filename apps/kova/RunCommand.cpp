#include "RunCommand.h"

#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "OpenProject.h"
#include "OptimisationRun.h"
#include "ProgressReporter.h"
#include "ScenarioFindings.h"
#include "UsageError.h"
#include "core/ConfigurationHeader.h"
#include "core/KOVACoreProgressBar.h"
#include "core/Scenario.h"
#include "operation/LinearProgramSolverFactory.h"
#include "reports/CSVWriteFile.h"
#include "reports/CSVWriteResults.h"
#include "scenario/ScenarioManager.h"

Command RunCommand::describe() {
  return {
      "run",
      "kova run P.sjson [--scenario NAME]... [--csv DIR] [--no-save] [--quiet] "
      "[--solver lpsolve|clp]\n"
      "         [--seed N] [--threads K] [--isolated]",
      tr("run scenarios and store their results"),
      HostText::help("run"),
      {{"csv", "solver", "seed", "threads"}, {"scenario"}, {"no-save", "quiet", "isolated"}, 1, 1},
      run};
}

int RunCommand::run(const CommandLine& line, Console& console) {
  ProgressReporter progress(console, line.has("quiet"));
  Interrupt::Guard interruptible;
  if (line.has("csv")) CSVWriteFile::requireWritableFolder(line.value("csv", ""));
  const std::string solver = line.value("solver", "");
  if (line.has("solver") && !LinearProgramSolverFactory::has(solver)) {
    throw UsageError(tr("--solver: unknown solver \"{1}\", expected {2}",
                        {solver, LinearProgramSolverFactory::keysText()}));
  }
  OpenProject project(
      line.positional(0), progress.callback(tr("opening"), ProgressReporter::Form::steps),
      line.has("no-save") ? OpenProject::Access::readOnly : OpenProject::Access::readWrite);
  progress.finish();
  if (line.has("solver")) ConfigurationHeader::setLinearProgramSolver(solver);
  int status = exitOk;
  for (const auto& scenario : project.select(line.values("scenario"))) {
    const int outcome = runScenario(project, scenario, line, console, progress);
    if (outcome == exitCancelled) return exitCancelled;
    if (outcome != exitOk) status = outcome;
  }
  return status;
}

// The piece of an isolated run that stopped it, or the scenario itself when it stopped before its
// first piece.
const Scenario& RunCommand::lastPiece(const std::shared_ptr<Scenario>& scenario) {
  const auto& pieces = ScenarioManager::getInstance()
                           .getSceneryIsolatedDataByID(scenario->getId())
                           .getVectorOfSceneryStructure();
  return pieces.empty() ? *scenario : *pieces.back();
}

int RunCommand::runScenario(const OpenProject& project, const std::shared_ptr<Scenario>& scenario,
                            const CommandLine& line, Console& console, ProgressReporter& progress) {
  OptimisationRun::prepare(*scenario, line, project);
  std::function<bool(long, long)> save;
  if (!line.has("no-save"))
    save = progress.callback(tr("saving") + " " + scenario->getName(),
                             ProgressReporter::Form::percentage);
  const bool isolated = line.has("isolated");
  try {
    ScenarioManager& manager = ScenarioManager::getInstance();
    const auto execute =
        isolated ? &ScenarioManager::executeIsolatedScenery : &ScenarioManager::executeScenery;
    (manager.*execute)(project.indexOf(scenario),
                       progress.callback(scenario->getName(), ProgressReporter::Form::percentage),
                       save);
  } catch (const KOVACoreProgressBar::ProgressCancelException&) {
    progress.finish();
    console.out << scenario->getName() << ": " << tr("results not stored, saving was cancelled")
                << '\n';
    return exitCancelled;
  }
  progress.finish();
  const auto status = scenario->getSceneryStatus();
  console.out << scenario->getName() << ": " << status.getName() << '\n';
  switch (status.getType()) {
    case SceneryStatus::success:
      break;
    case SceneryStatus::cancelled:
      return exitCancelled;
    default:
      ScenarioFindings::printLast(isolated ? lastPiece(scenario) : *scenario, console.out);
      return exitFindings;
  }
  OptimisationRun::finish(*scenario, line, project, console);
  if (line.has("csv")) {
    const auto files = CSVWriteResults::writeScenarios({scenario}, line.value("csv", ""));
    console.unlessQuiet(console.out) << scenario->getName() << ": "
                                     << tr("{1} CSV file(s) written under {2}",
                                           {std::to_string(files.size()), line.value("csv", "")})
                                     << '\n';
  }
  return exitOk;
}
