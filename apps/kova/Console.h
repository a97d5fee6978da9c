#pragma once

#include <ostream>

// Where a command writes: its results to out, progress and errors to err.
struct Console {
  std::ostream& out;
  std::ostream& err;
  bool errIsTerminal = false;  // progress is drawn as a bar only on a terminal
  bool quiet = false;          // --quiet: results and errors only

  // stream, or nowhere when quiet: for what a command says beside its results (what it wrote,
  // how many findings, warnings that the results carry themselves).
  std::ostream& unlessQuiet(std::ostream& stream) {
    static std::ostream nowhere(nullptr);
    return quiet ? nowhere : stream;
  }
};
