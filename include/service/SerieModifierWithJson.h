#pragma once

#include <nlohmann/json_fwd.hpp>

class Element;
class Scenario;
class Serie;
class ServiceLog;

// Writes the values of a change request into one series of an element and into the open project
// database.
class SerieModifierWithJson {
 public:
  // serie takes each {"date":"%Y-%m-%d","value":<number>} of json["values"], then the open
  // database gets the series (DatabaseSerieUpdater). Every item is read and checked before any
  // value changes: a malformed item (nlohmann::json's errors, Date's "Invalid date/format
  // matching.") or a date outside the series' interval (std::invalid_argument) leaves serie as
  // it was. A database without the series' rows throws std::runtime_error after serie changed.
  static void modifySerie(const Scenario& scenario, const Element& element, Serie& serie,
                          const nlohmann::json& json, ServiceLog& log);
};
