#pragma once

#include <string>

class PriorityScenario;
class RuleScenario;

// Gives one element of a scenario by rules, copied from a scenario by priorities that has run,
// what it needs to behave as it did in that run: a reservoir its rule (by the subclass), and a
// node (reservoir, junction, demand, basin) the allocation of its outflow among its links; a link
// needs nothing. The run's results are read from window 0.
class ConfigureRuleElementFromPriority {
 public:
  virtual ~ConfigureRuleElementFromPriority() = default;

  // Throws std::invalid_argument "<className>::configure(): invalid element type" for an element
  // of no known kind.
  void configure(unsigned int elementId, const PriorityScenario& priorityScenario,
                 RuleScenario& ruleScenario) const;

  // The allocation matrix of node elementId from what its outgoing links carried: one line per
  // distinct positive total of the run (rounded to 1e-6, ascending), holding the mean flow of
  // each link over the dates of that total; a reservoir's links are scaled to its release of each
  // date. A node whose links carried nothing shares equally.
  static void configureAllocationMatrixElementFromPriority(unsigned int elementId,
                                                           const PriorityScenario& priorityScenario,
                                                           RuleScenario& ruleScenario);

 protected:
  explicit ConfigureRuleElementFromPriority(std::string className)
      : className(std::move(className)) {}

  virtual void configureReservoir(unsigned int reservoirId,
                                  const PriorityScenario& priorityScenario,
                                  RuleScenario& ruleScenario) const = 0;

 private:
  std::string className;
};
