#pragma once

#include "Command.h"

// kova demo: builds the demo project from the real data of the source tree.
class DemoCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
