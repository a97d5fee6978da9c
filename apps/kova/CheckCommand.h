#pragma once

#include "Command.h"

// kova check: the findings that would keep scenarios from running.
class CheckCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
