#pragma once

#include "Command.h"

// kova solution: the rule scenario of one row of a stored front or guarantee curve.
class SolutionCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
