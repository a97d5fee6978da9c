#pragma once

#include <memory>
#include <ostream>

class Scenario;

// What keeps a scenario from running, as lines "<first field>: <message>".
class ScenarioFindings {
 public:
  // Runs the checks of scenario, prints every finding and gives their number.
  static std::size_t checkAndPrint(const std::shared_ptr<Scenario>& scenario, std::ostream& out);
  // Prints the findings the last check of scenario left and, for a priority scenario that found
  // no solution, the date; gives the number of lines printed.
  static std::size_t printLast(const Scenario& scenario, std::ostream& out);
};
