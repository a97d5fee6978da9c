#pragma once

#include "Command.h"

// kova copy-series: the input series of one scenario's elements into the elements of the same
// name in another scenario, of the same project or of another one.
class CopySeriesCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
