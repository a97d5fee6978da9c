#pragma once

#include "Command.h"

// kova info: what a project holds.
class InfoCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
