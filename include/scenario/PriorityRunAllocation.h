#pragma once

#include "core/RuleSettings.h"

class Node;
class Scenario;

// How a node of a scenario by priorities that has run shared its outflow among its links, as the
// allocation matrix of a rule scenario over the same network. The run's results are read from
// window 0.
class PriorityRunAllocation {
 public:
  // One line per distinct positive total of the run (rounded to 1e-6, ascending), holding the
  // mean flow of each link over the dates of that total; a reservoir's links are scaled to its
  // release of each date. A node whose links carried nothing shares equally.
  static RuleSettings::AllocationMatrix matrixOf(const Node& node, const Scenario& priorityRun);
};
