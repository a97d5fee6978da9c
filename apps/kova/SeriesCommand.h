#pragma once

#include "Command.h"

// kova series: one element's input and result series of a stored run, one value a line.
class SeriesCommand {
 public:
  static Command describe();
  static int run(const CommandLine& line, Console& console);
};
