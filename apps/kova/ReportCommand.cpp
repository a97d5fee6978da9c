#include "ReportCommand.h"

#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "ExitStatus.h"
#include "HostText.h"
#include "OpenProject.h"
#include "StoredRun.h"
#include "UsageError.h"
#include "core/Scenario.h"
#include "reports/GeneralSceneryReport.h"
#include "reports/ReportFormat.h"
#include "reports/automatic/AutomaticReportExpressionAnalyzerUtils.h"
#include "reports/automatic/AutomaticReportTreeUtils.h"

namespace {

namespace fs = std::filesystem;

// One expression as the user wrote it, its tree once read and its value once evaluated.
struct Asked {
  std::string text;
  std::unique_ptr<AutomaticReportExpression> tree;
  double value = 0.0;
};

// The text on one line: a control character, a line break among them, shows as a blank.
std::string shown(std::string text) {
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < 0x20) c = ' ';
  }
  return text;
}

bool blank(const std::string& line) { return line.find_first_not_of(" \t\r") == std::string::npos; }

// The --expression texts in their order, then the non-blank lines of the --expressions file.
std::vector<Asked> expressionsAsked(const CommandLine& line) {
  std::vector<Asked> asked;
  for (const auto& text : line.values("expression")) asked.push_back({text, nullptr});
  if (!line.has("expressions")) return asked;
  const std::string path = line.value("expressions", "");
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path + ": " + tr("cannot be read"));
  std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) throw std::runtime_error(path + ": " + tr("cannot be read"));
  // Editors on some systems open a UTF-8 file with a byte-order mark and end lines with CR LF.
  if (content.rfind("\xEF\xBB\xBF", 0) == 0) content.erase(0, 3);
  std::istringstream lines(content);
  for (std::string text; std::getline(lines, text);) {
    if (!text.empty() && text.back() == '\r') text.pop_back();
    if (!blank(text)) asked.push_back({text, nullptr});
  }
  return asked;
}

// Runs step on each expression; returns whether all went well, having told each failure.
template <typename Step>
bool eachOf(std::vector<Asked>& asked, Console& console, Step step) {
  bool allWell = true;
  for (Asked& one : asked) {
    try {
      step(one);
    } catch (const std::invalid_argument& error) {
      console.err << "kova report: "
                  << tr("expression \"{1}\": {2}", {shown(one.text), error.what()}) << '\n';
      allWell = false;
    }
  }
  return allWell;
}

unsigned int windowAsked(const CommandLine& line, const Scenario& scenario) {
  const unsigned long window = line.number("window", 1, 1);
  const std::size_t count = scenario.calcVectorOfIntervals().size();
  if (window > count) {
    throw UsageError(tr("option --window: scenario \"{1}\" has {2} window(s)",
                        {scenario.getName(), std::to_string(count)}));
  }
  return static_cast<unsigned int>(window - 1);
}

// Writes the drawings beside path first, so that a failure leaves no half-written file there.
void writeDrawings(const fs::path& path, const std::vector<Asked>& asked) {
  const fs::path partial = path.string() + ".part-" + std::to_string(getpid());
  {
    std::ofstream file(partial, std::ios::binary | std::ios::trunc);
    if (!file) throw std::runtime_error(path.string() + ": " + tr("could not be written"));
    for (const Asked& one : asked) {
      file << "// " << shown(one.text) << '\n'
           << AutomaticReportTreeUtils::drawGraphVizStartingOfNode(*one.tree);
    }
    file.close();
    if (!file) {
      std::error_code ignored;
      fs::remove(partial, ignored);
      throw std::runtime_error(path.string() + ": " +
                               tr("could not be written completely (disk full?)"));
    }
  }
  std::error_code error;
  fs::rename(partial, path, error);
  if (error) {
    std::error_code ignored;
    fs::remove(partial, ignored);
    throw std::runtime_error(path.string() + ": " +
                             tr("could not be put in place ({1})", {error.message()}));
  }
}

std::string valueText(double value) {
  return std::isnan(value) ? "-" : ReportFormat::number(value);
}

int printGeneralReport(const CommandLine& line, Console& console) {
  for (const char* option : {"dot", "window"}) {
    if (line.has(option)) {
      throw UsageError(tr("option --{1} needs --expression or --expressions", {option}));
    }
  }
  OpenProject project(line.positional(0));
  for (const auto& text :
       GeneralSceneryReport::makeLines(*project.scenario(line.required("scenario")))) {
    console.out << text << '\n';
  }
  return exitOk;
}

}  // namespace

Command ReportCommand::describe() {
  return {"report",
          "kova report P.sjson --scenario NAME [--expression TEXT]... [--expressions FILE]\n"
          "            [--window N] [--dot FILE]",
          tr("the general report of a scenario, or report expressions over its stored run"),
          HostText::help("report"),
          {{"scenario", "expressions", "window", "dot"}, {"expression"}, {}, 1, 1},
          run};
}

int ReportCommand::run(const CommandLine& line, Console& console) {
  if (!line.has("expression") && !line.has("expressions")) {
    return printGeneralReport(line, console);
  }
  std::vector<Asked> asked = expressionsAsked(line);
  if (asked.empty()) {
    throw UsageError(
        tr("option --expressions: \"{1}\" holds no expression", {line.value("expressions", "")}));
  }
  const bool read = eachOf(asked, console, [](Asked& one) {
    one.tree = AutomaticReportExpressionAnalyzerUtils::strToExp(one.text);
  });
  if (!read) return exitUsage;
  OpenProject project(line.positional(0));
  const auto scenario = project.scenario(line.required("scenario"));
  const AutomaticReportRun run{scenario, windowAsked(line, *scenario)};
  project.loadLatestResults(scenario);
  const StoredRun stored = StoredRun::latest(scenario, project.path());
  if (stored.inputsAreNewer()) {
    console.unlessQuiet(console.err)
        << "kova report: "
        << tr("warning: the project's inputs were saved after the stored run of {1}; run the "
              "scenario again for results that answer to them",
              {stored.getTimeStamp()})
        << '\n';
  }
  const bool evaluated =
      eachOf(asked, console, [&run](Asked& one) { one.value = one.tree->calculate(run); });
  if (!evaluated) return exitUsage;
  if (line.has("dot")) writeDrawings(line.value("dot", ""), asked);
  for (const Asked& one : asked)
    console.out << shown(one.text) << " = " << valueText(one.value) << '\n';
  return exitOk;
}
