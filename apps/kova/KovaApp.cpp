#include "KovaApp.h"

#include <algorithm>
#include <iostream>

#include "CheckCommand.h"
#include "CompareCommand.h"
#include "DemoCommand.h"
#include "ErrorText.h"
#include "ExitStatus.h"
#include "ExportCommand.h"
#include "FrontCommand.h"
#include "GenerateCommand.h"
#include "InfoCommand.h"
#include "MetricsCommand.h"
#include "NewCommand.h"
#include "ReportCommand.h"
#include "RunCommand.h"
#include "SaveAsCommand.h"
#include "SeriesCommand.h"
#include "SolutionCommand.h"
#include "UsageError.h"

namespace {

bool asksForHelp(const std::vector<std::string>& args) {
  return std::any_of(args.begin(), args.end(),
                     [](const std::string& arg) { return arg == "--help" || arg == "-h"; });
}

}  // namespace

const std::vector<Command>& KovaApp::commands() {
  static const std::vector<Command> all = {
      InfoCommand::describe(),    CheckCommand::describe(),    RunCommand::describe(),
      MetricsCommand::describe(), SeriesCommand::describe(),   CompareCommand::describe(),
      FrontCommand::describe(),   SolutionCommand::describe(), ReportCommand::describe(),
      ExportCommand::describe(),  NewCommand::describe(),      SaveAsCommand::describe(),
      DemoCommand::describe(),    GenerateCommand::describe()};
  return all;
}

int KovaApp::run(const std::vector<std::string>& args, Console& console) {
  if (args.empty() || args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
    printOverview(args.empty() ? console.err : console.out);
    return args.empty() ? exitUsage : exitOk;
  }
  if (args[0] == "--version") {
    console.out << "kova " << KOVA_VERSION << '\n';
    return exitOk;
  }
  const auto& all = commands();
  const auto command =
      std::find_if(all.begin(), all.end(), [&](const Command& c) { return c.name == args[0]; });
  if (command == all.end()) {
    console.err << "kova: unknown command \"" << args[0] << "\"; try 'kova --help'\n";
    return exitUsage;
  }
  const std::vector<std::string> rest(args.begin() + 1, args.end());
  if (asksForHelp(rest)) {
    printHelp(*command, console.out);
    return exitOk;
  }
  return runCommand(*command, rest, console);
}

int KovaApp::runCommand(const Command& command, const std::vector<std::string>& args,
                        Console& console) {
  const std::string prefix = "kova " + command.name + ": ";
  try {
    return command.run(CommandLine::parse(args, command.options), console);
  } catch (const UsageError& error) {
    console.err << prefix << ErrorText::of(error) << "; try 'kova " << command.name << " --help'\n";
  } catch (const std::exception& error) {
    console.err << prefix << ErrorText::of(error) << '\n';
  } catch (...) {
    console.err << prefix << "unexpected failure\n";
  }
  return exitUsage;
}

void KovaApp::printOverview(std::ostream& out) {
  out << "kova: runs and inspects water-resource system projects (P.sjson with P.sjson.sqlite)\n\n"
         "Usage: kova <command> [arguments] [options]\n       kova --version\n\nCommands:\n";
  for (const auto& command : commands()) {
    out << "  " << command.name
        << std::string(10 - std::min<std::size_t>(9, command.name.size()), ' ') << command.summary
        << '\n';
  }
  out << "\n'kova <command> --help' tells more about a command.\n"
         "Exit status: 0 done, 1 a scenario was refused or did not finish, 2 a usage or file\n"
         "error, 3 cancelled.\n";
}

void KovaApp::printHelp(const Command& command, std::ostream& out) {
  out << "Usage: " << command.usage << "\n\n" << command.summary << ".\n\n" << command.details;
}
