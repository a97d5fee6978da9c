#pragma once

#include "Command.h"

// kova compare: the metrics of several scenarios side by side.
class CompareCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
