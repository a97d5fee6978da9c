#pragma once

#include <cstdint>
#include <string>

// The text that tells one run's results apart from every other run's in SerieOutput: 16
// hexadecimal digits of a 64-bit FNV-1a hash of the scenario's databaseId, the run's time stamp
// (seconds), the process id, a steady clock reading in nanoseconds and a counter of the process.
// It is made once per run and handed to every row of that run, so it is stable for the run; the
// clock and the counter part runs of one second, the process id runs of two processes.
class TimeStampHash {
 public:
  // A new hash for a run of the scenario with that databaseId at timeStamp.
  static std::string make(int64_t scenarioId, const std::string& timeStamp);
};
