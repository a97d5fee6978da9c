#include "SaveAsCommand.h"

#include "ExitStatus.h"
#include "Interrupt.h"
#include "NewProjectTarget.h"
#include "OpenProject.h"
#include "ProgressReporter.h"

Command SaveAsCommand::describe() {
  return {"save-as",
          "kova save-as P.sjson Q.sjson [--quiet]",
          "copy a project under another name",
          "Opens P and saves it as Q: the project file Q.sjson and its database Q.sjson.sqlite.\n"
          "Q must not exist yet. Ctrl-C cancels the save and leaves no Q behind (exit status 3).\n",
          {{}, {}, {"quiet"}, 2, 2},
          run};
}

int SaveAsCommand::run(const CommandLine& line, Console& console) {
  const std::filesystem::path target(line.positional(1));
  NewProjectTarget::require(target);
  ProgressReporter progress(console, line.has("quiet"));
  Interrupt::Guard interruptible;
  OpenProject project(line.positional(0),
                      progress.callback("opening", ProgressReporter::Form::steps));
  if (!NewProjectTarget::saveOpenProject(
          target, progress.callback("saving", ProgressReporter::Form::steps))) {
    progress.finish();
    console.out << "save-as cancelled; " << line.positional(0) << " is as it was\n";
    return exitCancelled;
  }
  progress.finish();
  console.out << "saved as " << target.string() << '\n';
  return exitOk;
}
