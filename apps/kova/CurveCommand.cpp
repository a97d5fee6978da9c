#include "CurveCommand.h"

#include "CurveTable.h"
#include "ExitStatus.h"
#include "HostText.h"
#include "MetricsTable.h"
#include "OpenProject.h"
#include "core/Scenario.h"

Command CurveCommand::describe() {
  return {"curve",
          "kova curve P.sjson --scenario NAME [--format table|csv|json]",
          tr("the stored guarantee curve of a scenario"),
          HostText::help("curve"),
          {{"scenario", "format"}, {}, {}, 1, 1},
          run};
}

int CurveCommand::run(const CommandLine& line, Console& console) {
  const auto format = MetricsTable::formatNamed(line.value("format", "table"));
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const CurveTable curve = CurveTable::of(*scenario);
  if (curve.empty()) {
    console.err << "kova curve: "
                << tr("scenario \"{1}\" has no stored curve; run it with 'kova run'",
                      {scenario->getName()})
                << '\n';
    return exitFindings;
  }
  if (format == MetricsTable::Format::table) curve.printTable(console.out);
  if (format == MetricsTable::Format::csv) curve.printCsv(console.out);
  if (format == MetricsTable::Format::json) console.out << curve.toJson().dump(2) << '\n';
  curve.printFailures(console.err);
  return exitOk;
}
