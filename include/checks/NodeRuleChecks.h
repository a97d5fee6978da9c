#pragma once

#include "checks/ElementCheck.h"

// A basin and a junction have no checks of their own; in a rule scenario their allocation
// matrices must rise line by line and share exactly each line's total, and a node with two or more
// enabled downstream links must have a line that releases something.
class BasinCheck : public NodeCheck {
 public:
  BasinCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario)
      : NodeCheck(std::move(element), {}, std::move(scenario)) {}
};

class JunctionCheck : public NodeCheck {
 public:
  JunctionCheck(std::shared_ptr<Element> element, std::weak_ptr<Scenario> scenario)
      : NodeCheck(std::move(element), {}, std::move(scenario)) {}
};

// In a priority scenario a basin and a junction take no part in the priorities: the common
// checks are all.
class PriorityBasinCheck : public BasinCheck {
 public:
  using BasinCheck::BasinCheck;
};

class PriorityJunctionCheck : public JunctionCheck {
 public:
  using JunctionCheck::JunctionCheck;
};

// The allocation checks shared by basins and junctions of rule scenarios.
template <typename Base>
class RuleSharingCheck : public Base {
 public:
  using Base::Base;

 protected:
  void runChecks() override;
};

using RuleBasinCheck = RuleSharingCheck<BasinCheck>;
using RuleJunctionCheck = RuleSharingCheck<JunctionCheck>;
