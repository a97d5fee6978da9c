#pragma once

namespace SQLite {
class Database;
}
class Element;
class Scenario;
class Serie;

// The way by which an edit of one series of an element reaches the project database, whichever
// series of the element it is: an input (DatabaseUpdate::updateInputSerie), a goal series of its
// priority settings in the scenario (the hydrological series managers), or a result of one
// window (DatabaseUpdate::updateOutputSerie, under the scenario's last stored run). The rows of
// that series, and of that window for a result, are replaced by its values; what becomes of the
// former rows is DatabaseUpdate's rule.
class DatabaseSerieUpdater {
 public:
  // As below in the open project database. Throws std::logic_error without one.
  [[nodiscard]] static bool updateDatabase(const Scenario& scenario, const Element& element,
                                           const Serie& serie);
  // Stores serie, which must be one of element's own series objects. False when the database has
  // no row for its unit or its (type, unit) pair. Throws std::invalid_argument
  // "DatabaseSerieUpdater::updateDatabase(): the serie is not one of the element's" for another
  // series, DatabaseException on an SQLite failure.
  [[nodiscard]] static bool updateDatabase(SQLite::Database& storage, const Scenario& scenario,
                                           const Element& element, const Serie& serie);

 private:
  // The window whose results hold serie, or -1.
  static int windowOf(const Element& element, const Serie& serie);
  static bool isInput(const Element& element, const Serie& serie);
  static bool updateResult(SQLite::Database& storage, const Scenario& scenario,
                           const Element& element, const Serie& serie, unsigned int window);
};
