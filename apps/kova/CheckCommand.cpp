#include "CheckCommand.h"

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "ScenarioFindings.h"
#include "core/Scenario.h"

Command CheckCommand::describe() {
  return {"check",
          "kova check P.sjson [--scenario NAME]...",
          tr("check scenarios before running them"),
          HostText::help("check"),
          {{}, {"scenario"}, {}, 1, 1},
          run};
}

int CheckCommand::run(const CommandLine& line, Console& console) {
  OpenProject project(line.positional(0));
  std::size_t total = 0;
  for (const auto& scenario : project.select(line.values("scenario"))) {
    const std::size_t found = ScenarioFindings::checkAndPrint(scenario, console.out);
    console.unlessQuiet(console.err)
        << (found == 0 ? tr("scenario \"{1}\": no findings", {scenario->getName()})
                       : tr("scenario \"{1}\": {2} finding(s)",
                            {scenario->getName(), std::to_string(found)}))
        << '\n';
    total += found;
  }
  return total == 0 ? exitOk : exitFindings;
}
