#include "FrontCommand.h"

#include "ExitStatus.h"
#include "FrontTable.h"
#include "HostText.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "optimization/RuleOptimizationScenario.h"

Command FrontCommand::describe() {
  return {"front",
          "kova front P.sjson --scenario NAME [--format table|csv|json]",
          tr("the stored front of a rule optimisation"),
          HostText::help("front"),
          {{"scenario", "format"}, {}, {}, 1, 1},
          run};
}

int FrontCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const FrontTable front(FrontTable::optimisationOf(*scenario), true);
  if (front.empty()) {
    console.err << "kova front: "
                << tr("scenario \"{1}\" has no stored front; run it with 'kova run'",
                      {scenario->getName()})
                << '\n';
    return exitFindings;
  }
  if (format == MetricsTable::Format::table) front.printTable(console.out);
  if (format == MetricsTable::Format::csv) front.printCsv(console.out);
  if (format == MetricsTable::Format::json) console.out << front.toJson().dump(2) << '\n';
  return exitOk;
}
