#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "project/database/SerieTypeKey.h"

namespace SQLite {
class Database;
}
class Element;
class Scenario;

// Fills a scenario read from the project file with what the database holds for it: the series
// of every element, a reservoir's curve, and what its kind adds. Throws DatabaseException on an
// SQLite failure.
class DatabaseLoadScenario {
 public:
  // Told (elements done, elements in all).
  using Progress = std::function<bool(long, long)>;
  // An input series stored for an element that the element does not hold: its element's
  // databaseId and the SerieType row.
  using LostSerie = std::pair<int64_t, int64_t>;

  explicit DatabaseLoadScenario(std::shared_ptr<Scenario> scenario);
  virtual ~DatabaseLoadScenario() = default;

  // Loads every element; with ConfigurationHeader::isLoadResults() the scenario first gets empty
  // results, which the last run stored fills. done counts the elements loaded across calls and
  // is told to progress with total after each element; the return of progress is not a cancel.
  // Throws std::invalid_argument "DatabaseLoadScenario::load(): scenario not in the database"
  // when the database has no row for the scenario's databaseId.
  void load(SQLite::Database& storage, const SerieTypeIds& serieTypeIds, const Progress& progress,
            long& done, long total);
  // The stored input series of the scenario's elements that no series of theirs took: kinds the
  // element does not have, or (type, unit) pairs this program does not know.
  std::vector<LostSerie> findLostInputSeries(SQLite::Database& storage) const;
  // Gives the scenario empty results and fills them from the rows of the run told by hash.
  void loadResultsByHash(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                         const std::string& hash);

 protected:
  // What a kind of scenario loads for an element beyond series and curve.
  virtual void loadElementExtras(SQLite::Database& storage, const Element& element);
  const std::shared_ptr<Scenario>& getScenario() const { return scenario; }

 private:
  std::shared_ptr<Scenario> scenario;
};

class DatabaseLoadRuleScenario : public DatabaseLoadScenario {
 public:
  using DatabaseLoadScenario::DatabaseLoadScenario;
};

// Adds the goal series of each state and zone.
class DatabaseLoadPriorityScenario : public DatabaseLoadScenario {
 public:
  using DatabaseLoadScenario::DatabaseLoadScenario;

 protected:
  void loadElementExtras(SQLite::Database& storage, const Element& element) override;
};

class DatabaseLoadOptRuleScenario : public DatabaseLoadScenario {
 public:
  using DatabaseLoadScenario::DatabaseLoadScenario;
};

class DatabaseLoadGuaranteeCurveScenario : public DatabaseLoadScenario {
 public:
  using DatabaseLoadScenario::DatabaseLoadScenario;
};

class DatabaseLoadSystemGuaranteeCurveScenario : public DatabaseLoadScenario {
 public:
  using DatabaseLoadScenario::DatabaseLoadScenario;
};
