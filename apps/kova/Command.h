#pragma once

#include <functional>
#include <string>

#include "CommandLine.h"
#include "Console.h"

// One subcommand of the program: how it is called, what it does, what it accepts and the work.
struct Command {
  std::string name;
  std::string usage;    // the synopsis, "kova info P.sjson"
  std::string summary;  // one line for the list of commands
  std::string details;  // the options and what the command prints, for --help
  OptionSpec options;
  std::function<int(const CommandLine&, Console&)> run;
};
