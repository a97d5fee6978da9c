#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

class RuleOptimizationScenario;
class Scenario;

// The front of a rule optimisation as the user reads it: one row per solution with its index,
// the value of each objective function (headed by the function's name) and, when asked, the
// decision variables x1..xn, each in [0, 1].
class FrontTable {
 public:
  FrontTable(const RuleOptimizationScenario& scenario, bool withVariables);

  // scenario as a rule optimisation. Throws std::runtime_error naming the scenario and its kind
  // when it is of another kind.
  static RuleOptimizationScenario& optimisationOf(Scenario& scenario);

  bool empty() const { return objectives.empty(); }
  // Aligned columns, values in 10 significant digits; the first heading in the user's language.
  void printTable(std::ostream& out) const;
  // A header line, then one line per solution, fields separated by ','; values in 17 significant
  // digits, enough to give back the very same doubles.
  void printCsv(std::ostream& out) const;
  // [{"row":i,"objectives":{"<function>":v,...},"variables":[...]},...]
  nlohmann::ordered_json toJson() const;

 private:
  std::vector<std::string> header() const;
  std::vector<std::string> fields(std::size_t row, int digits) const;

  std::vector<std::string> names;
  std::vector<std::vector<double>> objectives;
  std::vector<std::vector<double>> variables;
};
