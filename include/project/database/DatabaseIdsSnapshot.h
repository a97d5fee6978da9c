#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace SQLite {
class Database;
}
class Element;
class Scenario;

// The databaseIds of scenarios and their elements at one moment, to put back when a write that
// handed out new keys does not commit: the model must keep pointing at rows that exist.
class DatabaseIdsSnapshot {
 public:
  explicit DatabaseIdsSnapshot(const std::vector<std::shared_ptr<Scenario>>& scenarios);
  // Gives every scenario and element its databaseId of the moment of the snapshot.
  void restore() const;

  // Runs write, which hands out keys to scenarios and their elements, inside one transaction on
  // storage: true when committed; false when write threw
  // KOVACoreProgressBar::ProgressCancelException. When write does not commit, nothing changes in
  // the database and every databaseId is put back. Throws what write throws, an SQLite failure as
  // DatabaseException.
  static bool writeOrRestore(SQLite::Database& storage,
                             const std::vector<std::shared_ptr<Scenario>>& scenarios,
                             const std::function<void()>& write);

 private:
  std::vector<std::pair<std::shared_ptr<Scenario>, unsigned int>> scenarioIds;
  std::vector<std::pair<std::shared_ptr<Element>, unsigned int>> elementIds;
};
