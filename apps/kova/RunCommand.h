#pragma once

#include <memory>

#include "Command.h"

class OpenProject;
class ProgressReporter;
class Scenario;

// kova run: runs scenarios, stores their results and exports them.
class RunCommand {
 public:
  static Command describe();

 private:
  static int run(const CommandLine& line, Console& console);
  // Runs one scenario; gives the exit status it calls for.
  static int runScenario(const OpenProject& project, const std::shared_ptr<Scenario>& scenario,
                         const CommandLine& line, Console& console, ProgressReporter& progress);
  static const Scenario& lastPiece(const std::shared_ptr<Scenario>& scenario);
};
