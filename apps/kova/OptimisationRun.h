#pragma once

#include <string>

#include "CommandLine.h"
#include "Console.h"

class OpenProject;
class Scenario;

// What 'kova run' adds for the kinds that search: before a rule optimisation or a system curve
// the seed and threads of its swarms, before a guarantee curve the seed of its search; after
// each, what it found (the front, the curve) printed and stored with the project.
class OptimisationRun {
 public:
  // Gives an optimisation or a system curve the options' seed (--seed N: the same result every
  // run; by default the clock's) and threads (--threads K, default the machine's cores), and an
  // optimisation the project's folder for its VAR and FUN files when results are saved; gives a
  // guarantee curve the seed of its search. Nothing for other scenarios.
  static void prepare(Scenario& scenario, const CommandLine& line, const OpenProject& project);
  // Prints the front of a finished optimisation or the curve of a guarantee curve and, unless
  // --no-save, writes the project file that keeps it. Throws std::runtime_error naming the file
  // when it cannot be written.
  static void finish(Scenario& scenario, const CommandLine& line, const OpenProject& project,
                     Console& console);
  // Writes the project file for an output of the project (a front, a curve, a scenario made from
  // one), keeping the file's time of change, so that the runs stored before do not look older than
  // the project's inputs. Throws std::runtime_error naming the file and what when it cannot.
  static void storeOutput(const OpenProject& project, const std::string& what);
};
