#pragma once

#include "Command.h"

// kova export: a scenario's results, inputs or curves as files, or its network as a Graphviz
// drawing or a KML map (a file that appears whole or not at all).
class ExportCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
