#pragma once

#include <functional>
#include <string>

#include "Console.h"

// Shows the progress of a long task on the error stream: a bar redrawn in place on a terminal,
// a line per ten per cent otherwise, nothing when quiet. The callback answers false once the
// user interrupted, which cancels the task.
class ProgressReporter {
 public:
  ProgressReporter(Console& console, bool quiet) : console(console), quiet(quiet) {}

  // The library reports in two forms: runs and stored results as (percentage, steps in all),
  // opening and saving projects as (steps done, steps in all).
  enum class Form { percentage, steps };

  // A callback for a task named fullLabel, cut to 60 bytes and "..." when longer.
  std::function<bool(long, long)> callback(const std::string& fullLabel, Form form);
  // Ends the current bar's line, if one is drawn.
  void finish();

 private:
  void show(const std::string& label, int percent);

  Console& console;
  bool quiet;
  std::string currentLabel;
  int lastPercent = -1;
};
