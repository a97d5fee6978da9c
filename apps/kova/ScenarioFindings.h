#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "checks/CheckCompleteness.h"

class Scenario;

// What keeps a scenario from running, one finding a line as a user reads it: the message, then
// the place it names.
class ScenarioFindings {
 public:
  // "Valor negativo em: Sobradinho-Evaporação-01-01-1941--5.000000" for a message that ends in
  // ':' and opens its place; "<message>: <place>" otherwise.
  static std::string lineOf(const CheckCompleteness::ErrorStruct& finding);
  // Runs the checks of scenario, prints every finding and gives their number.
  static std::size_t checkAndPrint(const std::shared_ptr<Scenario>& scenario, std::ostream& out);
  // Prints the findings the last check of scenario left and, for a priority scenario that found
  // no solution, the date; gives the number of lines printed.
  static std::size_t printLast(const Scenario& scenario, std::ostream& out);
};
