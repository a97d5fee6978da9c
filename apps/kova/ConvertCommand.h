#pragma once

#include "Command.h"

// kova convert: a new scenario of another kind made from one of the project's.
class ConvertCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
