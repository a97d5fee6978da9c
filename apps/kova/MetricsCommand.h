#pragma once

#include "Command.h"

// kova metrics: how well reservoirs and demands performed in a stored run.
class MetricsCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
