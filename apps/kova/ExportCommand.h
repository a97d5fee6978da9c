#pragma once

#include "Command.h"

// kova export: a scenario's results, inputs or curves as files.
class ExportCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
