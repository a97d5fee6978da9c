#pragma once

#include "Command.h"
#include "GeneratedProject.h"

// kova generate: a new synthetic project of a chosen size, for benchmarks and trials.
class GenerateCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
  // The options of a command line, checked. Throws UsageError naming the option at fault.
  static GeneratedProjectOptions optionsOf(const CommandLine& line);
  // A whole number option that must be given, from minimum to maximum.
  static unsigned int bounded(const CommandLine& line, const std::string& name,
                              unsigned long minimum, unsigned long maximum);
};
