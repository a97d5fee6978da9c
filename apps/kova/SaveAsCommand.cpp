#include "SaveAsCommand.h"

#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "NewProjectTarget.h"
#include "OpenProject.h"
#include "ProgressReporter.h"

Command SaveAsCommand::describe() {
  return {"save-as",
          "kova save-as P.sjson Q.sjson [--quiet]",
          tr("copy a project under another name"),
          HostText::help("save-as"),
          {{}, {}, {"quiet"}, 2, 2},
          run};
}

int SaveAsCommand::run(const CommandLine& line, Console& console) {
  const std::filesystem::path target(line.positional(1));
  NewProjectTarget::require(target);
  ProgressReporter progress(console, line.has("quiet"));
  Interrupt::Guard interruptible;
  OpenProject project(line.positional(0),
                      progress.callback(tr("opening"), ProgressReporter::Form::steps));
  if (!NewProjectTarget::saveOpenProject(
          target, progress.callback(tr("saving"), ProgressReporter::Form::steps))) {
    progress.finish();
    console.unlessQuiet(console.out)
        << tr("save-as cancelled; {1} is as it was", {line.positional(0)}) << '\n';
    return exitCancelled;
  }
  progress.finish();
  console.unlessQuiet(console.out) << tr("saved as {1}", {target.string()}) << '\n';
  return exitOk;
}
