#include "KovaApp.h"

#include <algorithm>
#include <iostream>

#include "CheckCommand.h"
#include "CompareCommand.h"
#include "ConvertCommand.h"
#include "CopySeriesCommand.h"
#include "CurveCommand.h"
#include "DemoCommand.h"
#include "DeriveRulesCommand.h"
#include "ErrorText.h"
#include "ExitStatus.h"
#include "ExportCommand.h"
#include "FrontCommand.h"
#include "GenerateCommand.h"
#include "HostText.h"
#include "ImportShapesCommand.h"
#include "InfoCommand.h"
#include "MetricsCommand.h"
#include "NewCommand.h"
#include "ReportCommand.h"
#include "RunCommand.h"
#include "SaveAsCommand.h"
#include "SeriesCommand.h"
#include "ServeCommand.h"
#include "SolutionCommand.h"
#include "UpdateCommand.h"
#include "UsageError.h"

namespace {

// Every command takes --quiet, which leaves out what is neither a result nor an error.
OptionSpec withQuiet(OptionSpec options) {
  options.flags.insert("quiet");
  return options;
}

bool asksForHelp(const std::vector<std::string>& args) {
  return std::any_of(args.begin(), args.end(),
                     [](const std::string& arg) { return arg == "--help" || arg == "-h"; });
}

}  // namespace

const std::vector<Command>& KovaApp::commands() {
  static const std::vector<Command> all = {
      InfoCommand::describe(),        CheckCommand::describe(),        RunCommand::describe(),
      MetricsCommand::describe(),     SeriesCommand::describe(),       CompareCommand::describe(),
      FrontCommand::describe(),       CurveCommand::describe(),        SolutionCommand::describe(),
      DeriveRulesCommand::describe(), ReportCommand::describe(),       ExportCommand::describe(),
      NewCommand::describe(),         SaveAsCommand::describe(),       DemoCommand::describe(),
      GenerateCommand::describe(),    ServeCommand::describe(),        UpdateCommand::describe(),
      CopySeriesCommand::describe(),  ImportShapesCommand::describe(), ConvertCommand::describe()};
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
    console.err << "kova: " << tr("unknown command \"{1}\"; try 'kova --help'", {args[0]}) << '\n';
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
    const CommandLine line = CommandLine::parse(args, withQuiet(command.options));
    console.quiet = line.has("quiet");
    return command.run(line, console);
  } catch (const UsageError& error) {
    console.err << prefix << ErrorText::of(error) << "; "
                << tr("try 'kova {1} --help'", {command.name}) << '\n';
  } catch (const std::exception& error) {
    console.err << prefix << ErrorText::of(error) << '\n';
  } catch (...) {
    console.err << prefix << tr("unexpected failure") << '\n';
  }
  return exitUsage;
}

void KovaApp::printOverview(std::ostream& out) {
  out << "kova: "
      << tr("runs and inspects water-resource system projects (P.sjson with P.sjson.sqlite)")
      << "\n\n"
      << tr("Usage: kova <command> [arguments] [options] [--quiet]\n       kova "
            "--version\n\nCommands:")
      << '\n';
  for (const auto& command : commands()) {
    out << "  " << command.name
        << std::string(10 - std::min<std::size_t>(9, command.name.size()), ' ') << command.summary
        << '\n';
  }
  out << '\n'
      << tr("'kova <command> --help' tells more about a command. --quiet, with any command,\n"
            "prints nothing but results and errors.\n"
            "Exit status: 0 done, 1 a scenario was refused or did not finish, 2 a usage or file\n"
            "error, 3 cancelled.\n");
}

void KovaApp::printHelp(const Command& command, std::ostream& out) {
  out << tr("Usage: {1}", {command.usage}) << "\n\n"
      << command.summary << ".\n\n"
      << command.details;
}
