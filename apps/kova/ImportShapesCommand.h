#pragma once

#include "Command.h"

// kova import-shapes: attaches shapefile layers to a scenario and, from a point layer whose table
// names the nodes, places them.
class ImportShapesCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
