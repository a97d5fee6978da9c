#include "ReportCommand.h"

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "reports/GeneralSceneryReport.h"

Command ReportCommand::describe() {
  return {"report",
          "kova report P.sjson --scenario NAME",
          tr("the general report of a scenario"),
          HostText::help("report"),
          {{"scenario"}, {}, {}, 1, 1},
          run};
}

int ReportCommand::run(const CommandLine& line, Console& console) {
  OpenProject project(line.positional(0));
  for (const auto& text :
       GeneralSceneryReport::makeLines(*project.scenario(line.required("scenario")))) {
    console.out << text << '\n';
  }
  return exitOk;
}
