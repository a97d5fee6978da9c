#pragma once

#include "Command.h"

// kova new: a blank priority project.
class NewCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
