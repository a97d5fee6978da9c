#pragma once

#include <memory>
#include <string>

#include "project/database/SerieTypeKey.h"

namespace SQLite {
class Database;
}
class Element;
class Reservoir;
class Serie;

// Fills an element's series from the project database: each input series from its enabled rows,
// and, when asked, each result series of each window from the enabled rows of that window (the
// last run stored) or from the rows of one run. Series without rows stay as they are. Throws
// DatabaseException on an SQLite failure, and DatabaseLoadException, naming the table, element,
// series and date, for a value that is no finite number or a date that has two values.
class DatabaseLoadElement {
 public:
  explicit DatabaseLoadElement(std::shared_ptr<Element> element);
  virtual ~DatabaseLoadElement() = default;

  // Loads the inputs, and the results of every window the element has when loadResults.
  virtual void load(SQLite::Database& storage, const SerieTypeIds& serieTypeIds, bool loadResults);
  // Loads the results of every window the element has from the rows of the run told by hash.
  void loadResultsWithHash(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                           const std::string& hash);

 protected:
  const std::shared_ptr<Element>& getElement() const { return element; }

 private:
  void loadResults(SQLite::Database& storage, const SerieTypeIds& serieTypeIds,
                   const std::string& hash);

  std::shared_ptr<Element> element;
};

// Loaders of each kind of element. Only a reservoir stores more than series: its curve.
class DatabaseLoadReservoir : public DatabaseLoadElement {
 public:
  using DatabaseLoadElement::DatabaseLoadElement;
  // As the base, then the level-area-volume table from the enabled Cav rows, by line, when the
  // database holds any.
  void load(SQLite::Database& storage, const SerieTypeIds& serieTypeIds, bool loadResults) override;
};

class DatabaseLoadBasin : public DatabaseLoadElement {
 public:
  using DatabaseLoadElement::DatabaseLoadElement;
};

class DatabaseLoadJunction : public DatabaseLoadElement {
 public:
  using DatabaseLoadElement::DatabaseLoadElement;
};

class DatabaseLoadDemand : public DatabaseLoadElement {
 public:
  using DatabaseLoadElement::DatabaseLoadElement;
};

class DatabaseLoadLink : public DatabaseLoadElement {
 public:
  using DatabaseLoadElement::DatabaseLoadElement;
};

class DatabaseLoadNode : public DatabaseLoadElement {
 public:
  using DatabaseLoadElement::DatabaseLoadElement;
};
