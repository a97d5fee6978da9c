#pragma once

#include <string>
#include <vector>

#include "Command.h"

// The kova program: picks the command named by the first argument, runs it, and turns every
// failure into one line on the error stream and an exit status.
class KovaApp {
 public:
  // args are the arguments after the program's name.
  static int run(const std::vector<std::string>& args, Console& console);
  // Every command, in the order the list of commands shows them.
  static const std::vector<Command>& commands();

 private:
  static int runCommand(const Command& command, const std::vector<std::string>& args,
                        Console& console);
  static void printOverview(std::ostream& out);
  static void printHelp(const Command& command, std::ostream& out);
};
