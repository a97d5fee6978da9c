#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

class PriorityScenario;

// The operations on the open project as a whole that the interfaces offer beside opening and
// saving (LoadProject, SaveProject): a new project, closing, and the two forms of save-as.
class ProjectFunctions {
 public:
  // Told (steps done, steps in all); false cancels.
  using Progress = std::function<bool(long, long)>;

  // A priority scenario without elements, named "Cenário <id>", that runs continuously over the
  // months of the current year, under the ScenarioManager's next scenario id (which moves on).
  // It is not installed in the ScenarioManager.
  static std::shared_ptr<PriorityScenario> createBlankPriorityScenery();
  // Closes the open project and makes a new one at path holding one blank priority scenario:
  // the scenario becomes the ScenarioManager's only one, "<path>.sqlite" the open database
  // (emptied of any former project's scenarios and series) with the scenario's row, and the
  // project file is written. False when the project file could not be written. Throws
  // DatabaseException when the database cannot be used.
  [[nodiscard]] static bool createBlankPriorityProject(const std::string& path);
  // Forgets the scenarios, closes the database and brings the configuration back to its
  // defaults.
  static void closeProject();

  // Save-as that takes the open database along: its every row, history and stored runs
  // included, is copied key for key to "<path>.sqlite" (see DatabaseCopy), which then becomes the
  // open database, and the project file is written at path. userId is the user on whose behalf
  // the copy is made. False when progress cancelled the copy (the open database stays and the
  // new one gets no rows) or the project file could not be written. Saving onto the open
  // project's own path writes the project file only. Throws std::logic_error without an open
  // database, std::invalid_argument as DatabaseCopy::copyDatabase for an unknown user, and
  // DatabaseException on an SQLite failure, the open database kept then.
  [[nodiscard]] static bool saveJsonProjectAsWithOlderDatabase(const std::string& path,
                                                               int64_t userId,
                                                               const Progress& progress);
  // Save-as that leaves the open database's history behind: "<path>.sqlite" becomes the open
  // database and receives the project as it is in memory (SaveProject::saveAs). False when
  // progress cancelled or the project file could not be written. Throws DatabaseException.
  [[nodiscard]] static bool saveJsonProjectAsWithoutOlderDatabase(const std::string& path,
                                                                  const Progress& progress);
};
