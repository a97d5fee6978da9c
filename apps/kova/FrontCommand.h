#pragma once

#include "Command.h"

// kova front: the stored front of a rule optimisation, its objectives and decision variables.
class FrontCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
