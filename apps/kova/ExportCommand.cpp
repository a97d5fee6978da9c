#include "ExportCommand.h"

#include <unistd.h>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <system_error>

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
#include "reports/GraphvizSceneryGeneratorFactory.h"
#include "reports/KMLGenerator.h"
#include "reports/ReportFormat.h"

namespace {

namespace fs = std::filesystem;

// What the generators say when they cannot make their file, and the start of what they say when
// a write or the closing failed.
const std::string kDotOpenError = "GraphVizGenerator::generateFile() error in open file";
const std::string kKmlOpenError = "KMLGenerator::make(): open file error!";
const std::string kDotWriteError = "GraphVizGenerator::generateFile() error in write file";
const std::string kKmlWriteError = "KMLGenerator::make(): write file error!";

bool startsWith(const std::string& text, const std::string& start) {
  return text.compare(0, start.size(), start) == 0;
}

fs::path outputFolder(const std::string& name) {
  fs::path folder(name);
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder)) {
    throw std::runtime_error(name + ": " + tr("cannot make the output folder"));
  }
  return folder;
}

void removeQuietly(const fs::path& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

// Has write make its file beside path and puts it in place once whole, so that a failure leaves
// neither a half-written file at path nor the partial one beside it.
void writeInPlace(const fs::path& path, const std::function<void(const fs::path&)>& write) {
  const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
  std::error_code error;
  if (!fs::is_directory(folder, error)) {
    throw std::runtime_error(folder.string() + ": " + tr("no such folder"));
  }
  if (fs::is_directory(path, error)) {
    throw std::runtime_error(path.string() + ": " + tr("is a folder, not a file"));
  }
  const fs::path partial = path.string() + ".part-" + std::to_string(getpid());
  try {
    write(partial);
  } catch (const std::runtime_error& failure) {
    removeQuietly(partial);
    const std::string text = failure.what();
    if (text == kDotOpenError || text == kKmlOpenError) {
      throw std::runtime_error(path.string() + ": " + tr("could not be written"));
    }
    if (startsWith(text, kDotWriteError) || startsWith(text, kKmlWriteError)) {
      throw std::runtime_error(path.string() + ": " +
                               tr("could not be written completely (disk full?)"));
    }
    throw;
  } catch (...) {
    removeQuietly(partial);
    throw;
  }
  fs::rename(partial, path, error);
  if (error) {
    removeQuietly(partial);
    throw std::runtime_error(path.string() + ": " +
                             tr("could not be put in place ({1})", {error.message()}));
  }
}

}  // namespace

Command ExportCommand::describe() {
  return {"export",
          "kova export csv|inputs|cav P.sjson --scenario NAME --out DIR\n"
          "       kova export dot|kml P.sjson --scenario NAME --out FILE",
          tr("write results, inputs, curves, the graph or the map as files"),
          HostText::help("export"),
          {{"scenario", "out"}, {}, {}, 2, 2},
          run};
}

int ExportCommand::run(const CommandLine& line, Console& console) {
  const std::string what = line.positional(0);
  if (what != "csv" && what != "inputs" && what != "cav" && what != "dot" && what != "kml") {
    throw UsageError(tr("nothing to export named \"{1}\" (csv, inputs, cav, dot or kml)", {what}));
  }
  OpenProject project(line.positional(1));
  const auto scenario = project.scenario(line.required("scenario"));
  if (what == "dot" || what == "kml") {
    const fs::path file(line.required("out"));
    if (what == "dot") {
      writeInPlace(file, [&scenario](const fs::path& partial) {
        GraphvizSceneryGeneratorFactory::make(partial, scenario);
      });
    } else {
      writeInPlace(file, [&scenario](const fs::path& partial) {
        KMLGenerator::make(ElementsFilter::filterByNodes(scenario->getSortedElements()), partial);
      });
    }
    console.unlessQuiet(console.out) << (what == "dot" ? tr("graph written to {1}", {file.string()})
                                                       : tr("map written to {1}", {file.string()}))
                                     << '\n';
    return exitOk;
  }
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
