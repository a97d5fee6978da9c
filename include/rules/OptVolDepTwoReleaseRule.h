#pragma once

#include <memory>
#include <vector>

#include "rules/OptReleaseRule.h"
#include "rules/VolDepTwoReleaseRule.h"

// What the optimisable twins of the rules by the storage of two reservoirs add to them: a table of
// the shape of the rule's own in which -998.0 marks the cells the optimiser chooses (a percentage
// as value * 100, a release as value * maxRelease). Values are taken for the first dependency's
// percentages, then the second's, then the releases month by month, row by row. Each percentage
// list is then sorted, stably, and the releases follow their rows and columns.
class OptVolDepTwoReleaseRule : public OptReleaseRule {
 public:
  unsigned int getNumOfDecisionVars() const override;
  void setDecisionVars(const std::vector<double>& values) override;
  // A fresh simulation rule of the matching form with the dependencies' ids and the present table.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

  const VolDepTwoReleaseStruct& getOptVolDepTwoReleaseStruct() const { return toOptTable; }
  // Sets the table of marks. Throws std::invalid_argument
  // "OptVolDepTwoReleaseRule:setVolDepTwoReleaseStruct(): The releases has a negative value." for
  // an unmarked negative release.
  void setOptVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table);
  // The largest release the optimiser may choose, m³/s. Throws std::invalid_argument
  // "OptVolDepTwoReleaseRule::setMaxRelease(): the maxRelease is a negative value" below 0.
  double getMaxRelease() const { return maxRelease; }
  void setMaxRelease(double value);

 protected:
  virtual VolDepTwoReleaseRule& working() = 0;
  const VolDepTwoReleaseRule& working() const {
    return const_cast<OptVolDepTwoReleaseRule*>(this)->working();
  }
  virtual std::shared_ptr<VolDepTwoReleaseRule> getReleaseRuleInstance() const = 0;
  void copyOptInto(OptVolDepTwoReleaseRule& target) const;

 private:
  VolDepTwoReleaseStruct toOptTable;
  double maxRelease = 0.0;  // m³/s
};
