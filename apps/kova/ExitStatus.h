#pragma once

// What the program tells its caller when it ends.
enum ExitStatus : int {
  exitOk = 0,
  exitFindings = 1,   // a scenario was refused by its checks, or did not finish
  exitUsage = 2,      // a usage or file error
  exitCancelled = 3,  // the user interrupted a run
};
