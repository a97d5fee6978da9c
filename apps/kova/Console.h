#pragma once

#include <ostream>

// Where a command writes: its results to out, progress and errors to err.
struct Console {
  std::ostream& out;
  std::ostream& err;
  bool errIsTerminal = false;  // progress is drawn as a bar only on a terminal
};
