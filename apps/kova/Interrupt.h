#pragma once

// Ctrl-C during a run: the first SIGINT only raises a flag that the progress callback reads, so
// the run ends through its own cancel path and leaves the project as it was.
class Interrupt {
 public:
  // Installs the handler for as long as the guard lives and clears the flag.
  class Guard {
   public:
    Guard();
    ~Guard();
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;
  };

  static bool requested();
  // Raises the flag as a SIGINT would.
  static void request();
};
