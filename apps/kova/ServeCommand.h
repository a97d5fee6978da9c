#pragma once

#include "Command.h"

// kova serve: the TLV service over the projects of a folder, until SIGINT or SIGTERM.
class ServeCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
