#pragma once

#include "Command.h"

// kova curve: the stored guarantee curve of a guarantee-curve scenario.
class CurveCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
