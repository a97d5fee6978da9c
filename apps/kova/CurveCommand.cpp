#include "CurveCommand.h"

#include "CurveTable.h"
#include "ExitStatus.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "core/Scenario.h"

Command CurveCommand::describe() {
  return {"curve",
          "kova curve P.sjson --scenario NAME [--format table|csv|json]",
          "the stored guarantee curve of a scenario",
          "Prints the guarantee curve that the latest run of the scenario stored in the project:\n"
          "one row per level of guarantee (%) that every reservoir of the curve reached, with the\n"
          "constant release (m³/s) of each, the row number being the one 'kova solution' takes;\n"
          "for the curve of a system, the flow of its out reservoir at each level.\n"
          "The table marks Q90; csv has the header 'guarantee' and one column per reservoir,\n"
          "releases in 17 significant digits; json is an array of {\"guarantee\", \"releases\":\n"
          "{\"<reservoir>\": q}}. The levels asked that have no row go to standard error.\n"
          "Exit status: 0 printed, 1 the scenario has no stored curve, 2 usage or file error.\n",
          {{"scenario", "format"}, {}, {}, 1, 1},
          run};
}

int CurveCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const CurveTable curve = CurveTable::of(*scenario);
  if (curve.empty()) {
    console.err << "kova curve: scenario \"" << scenario->getName()
                << "\" has no stored curve; run it with 'kova run'\n";
    return exitFindings;
  }
  if (format == MetricsTable::Format::table) curve.printTable(console.out);
  if (format == MetricsTable::Format::csv) curve.printCsv(console.out);
  if (format == MetricsTable::Format::json) console.out << curve.toJson().dump(2) << '\n';
  curve.printFailures(console.err);
  return exitOk;
}
