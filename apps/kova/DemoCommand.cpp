#include "DemoCommand.h"

#include "DemoProject.h"
#include "ExitStatus.h"
#include "HostText.h"
#include "Interrupt.h"
#include "NewProjectTarget.h"
#include "ProgressReporter.h"

namespace {

constexpr const char* kProjectName = "sao_francisco.sjson";
constexpr unsigned long kFirstYearOfRecord = 1931;
constexpr unsigned long kLastYearOfRecord = 9999;  // the whole of the inflow file

std::filesystem::path projectIn(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (!std::filesystem::is_directory(folder)) {
    throw std::runtime_error(folder + ": " + tr("cannot make the folder"));
  }
  return std::filesystem::path(folder) / kProjectName;
}

}  // namespace

Command DemoCommand::describe() {
  return {"demo",
          "kova demo DIR [--data FOLDER] [--until YEAR] [--quiet]",
          tr("build the São Francisco demo project"),
          HostText::help("demo"),
          {{"data", "until"}, {}, {"quiet"}, 1, 1},
          run};
}

int DemoCommand::run(const CommandLine& line, Console& console) {
  const auto project = projectIn(line.positional(0));
  NewProjectTarget::require(project);
  ProgressReporter progress(console, line.has("quiet"));
  Interrupt::Guard interruptible;
  const auto lastYear =
      static_cast<unsigned int>(line.number("until", kLastYearOfRecord, kFirstYearOfRecord));
  const bool built =
      DemoProject::build(line.value("data", KOVA_DEMO_DATA), lastYear, project,
                         progress.callback(tr("saving"), ProgressReporter::Form::steps));
  progress.finish();
  if (!built) {
    console.unlessQuiet(console.out) << tr("demo cancelled; nothing was written") << '\n';
    return exitCancelled;
  }
  console.unlessQuiet(console.out) << tr("demo project written to {1}", {project.string()}) << '\n';
  return exitOk;
}
