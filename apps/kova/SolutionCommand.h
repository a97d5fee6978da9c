#pragma once

#include "Command.h"

// kova solution: the rule scenario of one solution of a rule optimisation's stored front.
class SolutionCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
