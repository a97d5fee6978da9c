#pragma once

#include "Command.h"

// kova report: the general report of a scenario, or the values of report expressions over its
// latest stored run.
class ReportCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
