#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "common/Date.h"
#include "vocabulary/EnumTypes.h"

namespace SQLite {
class Database;
}
class Element;
class Reservoir;

// Turns the JSON answers of the web service into series and curves of the model and stores them
// in the project database. An answer is checked whole before anything changes: a refused answer
// leaves the element and the database as they were.
//
// A series answer: {"list":[{"data":"31-01-2001","valor":12.5},...]}, each date "dd-mm-yyyy" and
// one of the periods of the series' interval, each value a number, a number in a string, or null
// for a missing value (stored as -999.0).
// A curve answer: {"list":[{"cota":400.0,"area":0.0,"volume":0.0},...]}, level in m, area in km²
// and volume in hm³, at least one row.
class APIJsonLoader {
 public:
  // Writes the values of the answer over the element's input series of that type (other dates
  // keep theirs), stores the series with DatabaseUpdate::updateInputSerie and returns the pairs
  // read, in the order of the answer. Throws std::runtime_error
  // "APIJsonLoader::loadJsonExternalSerie(): <reason>" for an answer it refuses or a database
  // without that series type, and what Element::getInputSerie throws for a type the element
  // lacks.
  static std::vector<std::pair<Date, double>> loadJsonExternalSerie(SQLite::Database& storage,
                                                                    const std::string& json,
                                                                    Element& element,
                                                                    SerieType type);
  // Replaces the reservoir's level-area-volume table by the rows of the answer, stores it with
  // DatabaseUpdate::updateCAV and returns the number of rows. Throws std::runtime_error
  // "APIJsonLoader::loadJsonExternalCAV(): <reason>" for an answer it refuses.
  static std::size_t loadJsonExternalCAV(SQLite::Database& storage, const std::string& json,
                                         Reservoir& reservoir);
};
