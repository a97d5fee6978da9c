#pragma once

#include "Command.h"

// kova update: a reservoir's input series or level-area-volume table from the web service that
// the project's configuration names.
class UpdateCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
