#pragma once

#include <memory>
#include <vector>

#include "core/ReleaseRule.h"

// What makes a release rule optimisable; every optimisable rule is a ReleaseRule with this too. A
// run uses it like its simulation twin; before each simulation the optimiser hands it its slice of
// a candidate, values in [0, 1], which the rule scales into its own range. After the optimisation
// it becomes a plain simulation rule.
class OptReleaseRule {
 public:
  virtual ~OptReleaseRule() = default;

  // How many values of a candidate the rule takes.
  virtual unsigned int getNumOfDecisionVars() const = 0;
  // Writes values, in [0, 1], into the rule's numbers. Throws std::invalid_argument
  // "<Class>::setDecisionVars: Invalid size of values vector" when their count differs from
  // getNumOfDecisionVars(), before anything changes.
  virtual void setDecisionVars(const std::vector<double>& values) = 0;
  // The simulation rule with the rule's present numbers.
  virtual std::shared_ptr<ReleaseRule> convertToReleaseRule() const = 0;

  // The mark of a cell to be chosen by the optimiser in the tables of the rules.
  static constexpr double kDecisionMark = -998.0;

 protected:
  // Throws the size failure of setDecisionVars for className when values don't fit.
  void checkDecisionVarsSize(const std::vector<double>& values, const char* className) const;
  // Throws std::invalid_argument "<className>::setMaxRelease(): the maxRelease is a negative
  // value" for a negative maximum release.
  static void checkMaxRelease(double value, const char* className);
  static bool isMarked(double value) { return value == kDecisionMark; }
};
