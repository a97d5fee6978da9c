#include "ExportCommand.h"

#include <filesystem>

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "UsageError.h"
#include "core/ElementSets.h"
#include "core/ElementsFilter.h"
#include "core/Scenario.h"
#include "reports/CSVCav.h"
#include "reports/CSVWriteInputs.h"
#include "reports/CSVWriteResults.h"
#include "reports/ReportFormat.h"

namespace {

std::filesystem::path outputFolder(const std::string& name) {
  std::filesystem::path folder(name);
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!std::filesystem::is_directory(folder)) {
    throw std::runtime_error(name + ": " + tr("cannot make the output folder"));
  }
  return folder;
}

}  // namespace

Command ExportCommand::describe() {
  return {"export",
          "kova export csv|inputs|cav P.sjson --scenario NAME --out DIR",
          tr("write results, inputs or curves as files"),
          HostText::help("export"),
          {{"scenario", "out"}, {}, {}, 2, 2},
          run};
}

int ExportCommand::run(const CommandLine& line, Console& console) {
  const std::string what = line.positional(0);
  if (what != "csv" && what != "inputs" && what != "cav") {
    throw UsageError(tr("nothing to export named \"{1}\" (csv, inputs or cav)", {what}));
  }
  OpenProject project(line.positional(1));
  const auto scenario = project.scenario(line.required("scenario"));
  const auto folder = outputFolder(line.required("out"));
  std::size_t files = 1;
  if (what == "csv") {
    project.loadLatestResults(scenario);
    files = CSVWriteResults::writeScenarios({scenario}, folder).size();
  } else if (what == "inputs") {
    files = CSVWriteInputs::writeInputs(folder, scenario).size();
  } else {
    CSVCav::exportCavs(
        ElementsFilter::filterByType(scenario->getSortedElements(), ElementSets::reservoir()),
        folder / (ReportFormat::safeFileName(scenario->getName()) + "_cav.txt"));
  }
  console.unlessQuiet(console.out)
      << tr("{1} file(s) written under {2}", {std::to_string(files), folder.string()}) << '\n';
  return exitOk;
}
