#pragma once

#include "Command.h"

// kova save-as: a copy of a project under another name.
class SaveAsCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
