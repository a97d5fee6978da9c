#pragma once

#include "Command.h"

// kova derive-rules: the rule scenario that follows the stored run of a scenario by priorities.
class DeriveRulesCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
};
