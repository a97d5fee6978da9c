#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/Interval.h"
#include "common/Serie.h"

class Scenario;

// Operations on whole series.
class SerieManager {
 public:
  static void fill(const std::shared_ptr<Serie>& serie, const double& value);
  // to takes interval, type, unit and values of from.
  static void copy(const std::shared_ptr<Serie>& from, const std::shared_ptr<Serie>& to);
  // The values in date order.
  static std::vector<double> values(const std::shared_ptr<Serie>& serie);
  static std::vector<std::string> strValues(const std::shared_ptr<Serie>& serie);
  // The values within interval, as a new series over it.
  static std::shared_ptr<Serie> filter(const std::shared_ptr<Serie>& serie,
                                       const Interval& interval);

  // A new series with the first one's interval, type and unit holding, on every date of any of
  // them, the sum of all (a missing value counts as -999.0). Null for no series.
  static std::shared_ptr<Serie> getSumSerie(const std::vector<std::shared_ptr<Serie>>& series);

  // Replaces the values of serie by those of a CSV file: a header line, then "dd-mm-yyyy" and a
  // number per line, split at separator. Throws std::runtime_error
  // "SerieManager::fillSerieFromCSVFile(): Cannot open the input file" or
  // "SerieManager::fillSerieFromCSVFile(): invalid file" (empty header), and
  // "SerieManager::fillSerieFromCSVFile(): invalid line <n>" for a line that is not a dated
  // number; the series is left empty on failure.
  static void fillSerieFromCSVFile(const std::string& path, const std::shared_ptr<Serie>& serie,
                                   char separator);

  // The monthly means of a daily series over the months of interval, each dated the first of its
  // month. Missing days are left out of the sum but not of the divisor.
  static std::shared_ptr<Serie> monthlyFromDaily(const std::shared_ptr<Serie>& daily,
                                                 const Interval& interval);

  // The sum over the enabled elements of elementType of their result series of kind type, in one
  // window / in each window. Null when no element qualifies.
  static std::shared_ptr<Serie> getWndSumSerieByType(const std::shared_ptr<Scenario>& scenario,
                                                     SerieType type, ElementType elementType,
                                                     unsigned int windowIndex);
  static std::vector<std::shared_ptr<Serie>> getAllWndSumSeriesByType(
      const std::shared_ptr<Scenario>& scenario, SerieType type, ElementType elementType);
};
