#include "NewCommand.h"

#include <stdexcept>

#include "ExitStatus.h"
#include "HostText.h"
#include "NewProjectTarget.h"
#include "managers/ProjectFunctions.h"
#include "scenario/PriorityScenario.h"

Command NewCommand::describe() {
  return {"new",
          "kova new P.sjson",
          tr("create a blank priority project"),
          HostText::help("new"),
          {{}, {}, {}, 1, 1},
          run};
}

int NewCommand::run(const CommandLine& line, Console& console) {
  const std::filesystem::path path(line.positional(0));
  NewProjectTarget::require(path);
  ProjectFunctions::closeProject();
  const std::shared_ptr<Scenario> blank = ProjectFunctions::createBlankPriorityScenery();
  if (!NewProjectTarget::save({blank}, path, nullptr)) {
    throw std::runtime_error(path.string() + ": " + tr("could not be written"));
  }
  console.unlessQuiet(console.out) << tr("new project written to {1}", {path.string()}) << '\n';
  return exitOk;
}
