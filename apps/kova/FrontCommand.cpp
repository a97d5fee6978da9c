#include "FrontCommand.h"

#include "ExitStatus.h"
#include "FrontTable.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "optimization/RuleOptimizationScenario.h"

Command FrontCommand::describe() {
  return {"front",
          "kova front P.sjson --scenario NAME [--format table|csv|json]",
          "the stored front of a rule optimisation",
          "Prints the front that the latest run of the rule optimisation stored in the project:\n"
          "one row per solution with its index (the row that 'kova solution' takes), the value\n"
          "of each objective function and the decision variables x1..xn, each in [0, 1]. csv\n"
          "separates fields by ',' and gives 17 significant digits; json is an array of\n"
          "{\"row\", \"objectives\": {\"<function>\": value}, \"variables\": [...]}.\n"
          "Exit status: 0 printed, 1 the scenario has no stored front, 2 usage or file error.\n",
          {{"scenario", "format"}, {}, {}, 1, 1},
          run};
}

int FrontCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const FrontTable front(FrontTable::optimisationOf(*scenario), true);
  if (front.empty()) {
    console.err << "kova front: scenario \"" << scenario->getName()
                << "\" has no stored front; run it with 'kova run'\n";
    return exitFindings;
  }
  if (format == MetricsTable::Format::table) front.printTable(console.out);
  if (format == MetricsTable::Format::csv) front.printCsv(console.out);
  if (format == MetricsTable::Format::json) console.out << front.toJson().dump(2) << '\n';
  return exitOk;
}
