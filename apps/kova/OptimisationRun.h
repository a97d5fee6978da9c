#pragma once

#include "CommandLine.h"
#include "Console.h"

class OpenProject;
class Scenario;

// What 'kova run' adds for a rule optimisation: the seed and threads of the swarm before the run,
// and after it the front printed and stored with the project.
class OptimisationRun {
 public:
  // Gives an optimisation the options' seed (--seed N: the same front every run; by default the
  // clock's) and threads (--threads K, default the machine's cores), and the project's folder for
  // its VAR and FUN files when results are saved. Nothing for other scenarios.
  static void prepare(Scenario& scenario, const CommandLine& line, const OpenProject& project);
  // Prints the front of a finished optimisation and, unless --no-save, writes the project file
  // that keeps it. Throws std::runtime_error naming the file when it cannot be written.
  static void finish(Scenario& scenario, const CommandLine& line, const OpenProject& project,
                     Console& console);
};
