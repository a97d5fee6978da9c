#pragma once

#include <memory>
#include <vector>

#include "rules/OptReleaseRule.h"
#include "rules/VolDepOneReleaseRule.h"

// What the optimisable twins of the rules by the storage of one reservoir add to them: a table of
// the shape of the rule's own in which -998.0 marks the percentages and releases the optimiser
// chooses (a percentage as value * 100, a release as value * maxRelease; other cells are fixed).
// After each candidate the rule's table is rebuilt from it and sorted by percentage, so that it
// stays a valid step table whatever the optimiser proposes.
class OptVolDepOneReleaseRule : public OptReleaseRule {
 public:
  using Table = std::vector<VolDepOneReleaseStruct>;

  // The number of marked cells of the table.
  unsigned int getNumOfDecisionVars() const override;
  void setDecisionVars(const std::vector<double>& values) override;
  // A fresh simulation rule of the matching form with the dependency's id and the present table.
  std::shared_ptr<ReleaseRule> convertToReleaseRule() const override;

  const Table& getToOptVectorOfVolDepOneReleaseStruct() const { return toOptTable; }
  // Sets the table of marks. Throws std::invalid_argument as the rule's own table setter does
  // for a row of the wrong size or an unmarked negative release.
  void setToOptVectorOfVolDepOneReleaseStruct(const Table& rows);
  // The largest release the optimiser may choose, m³/s. Throws std::invalid_argument
  // "OptVolDepOneReleaseRule::setMaxRelease(): the maxRelease is a negative value" below 0.
  double getMaxRelease() const { return maxRelease; }
  void setMaxRelease(double value);

 protected:
  // The rule itself, seen as its simulation twin.
  virtual VolDepOneReleaseRule& working() = 0;
  const VolDepOneReleaseRule& working() const {
    return const_cast<OptVolDepOneReleaseRule*>(this)->working();
  }
  // A new, empty simulation rule of the matching form.
  virtual std::shared_ptr<VolDepOneReleaseRule> getReleaseRuleInstance() const = 0;
  // Checks a row's size as the simulation rule does; throws its text otherwise.
  virtual void checkRowSize(const VolDepOneReleaseStruct& row) const = 0;
  void copyOptInto(OptVolDepOneReleaseRule& target) const;

 private:
  Table toOptTable;
  double maxRelease = 0.0;  // m³/s
};
