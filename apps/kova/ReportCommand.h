#pragma once

#include "Command.h"

// kova report: the general report of a scenario.
class ReportCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
