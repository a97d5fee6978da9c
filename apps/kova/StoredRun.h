#pragma once

#include <filesystem>
#include <memory>
#include <string>

class Scenario;

// The latest stored run of a scenario, as the commands that read results tell it: its time stamp,
// and whether the project's inputs were saved after it (the results may then answer to inputs
// that are no longer there).
class StoredRun {
 public:
  // The latest run of scenario in the open project database; projectFile is the project's file.
  // Throws std::runtime_error naming the scenario when it has no stored run.
  static StoredRun latest(const std::shared_ptr<Scenario>& scenario,
                          const std::filesystem::path& projectFile);

  // When the run was stored: local time, "YYYY-MM-DDTHH:MM:SS".
  const std::string& getTimeStamp() const { return timeStamp; }
  // Whether the project file or an input series or curve of the scenario was saved after it.
  bool inputsAreNewer() const { return inputsNewer; }

 private:
  StoredRun(std::string timeStamp, bool inputsNewer)
      : timeStamp(std::move(timeStamp)), inputsNewer(inputsNewer) {}

  std::string timeStamp;
  bool inputsNewer;
};
