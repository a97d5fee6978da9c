#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

class GuaranteeCurveScenario;
class Scenario;
class SystemGuaranteeCurveScenario;

// The guarantee curve as the user reads it: one row per level reached, the level (%) and the
// constant release (m³/s) of each reservoir of the curve, headed by the reservoir's name. The
// curve of a system has one column, its out reservoir.
class CurveTable {
 public:
  explicit CurveTable(const GuaranteeCurveScenario& scenario);
  explicit CurveTable(const SystemGuaranteeCurveScenario& scenario);

  // The curve of scenario, of a reservoir or of a system. Throws std::runtime_error naming the
  // scenario and its kind when it is of another kind.
  static CurveTable of(const Scenario& scenario);

  bool empty() const { return levels.empty(); }
  // Aligned columns, releases in 10 significant digits; the level 90 is marked "90 (Q90)". The
  // first heading is in the user's language.
  void printTable(std::ostream& out) const;
  // "guarantee" and one column per reservoir, releases in 17 significant digits.
  void printCsv(std::ostream& out) const;
  // [{"guarantee":g,"releases":{"<reservoir>":q,...}},...]
  nlohmann::ordered_json toJson() const;
  // The levels asked that have no row, and the reservoirs that failed them when the curve was
  // computed in this process, one line each.
  void printFailures(std::ostream& out) const;

 private:
  // The levels of asked that have no row.
  void findMissing(const std::vector<double>& asked);
  std::vector<std::string> header() const;
  std::vector<std::string> fields(std::size_t row, int digits) const;

  std::vector<std::string> names;
  std::vector<double> levels;
  std::vector<std::vector<double>> releases;
  std::vector<double> missing;
  std::vector<std::string> failed;
};
