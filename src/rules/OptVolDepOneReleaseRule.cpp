#include "rules/OptVolDepOneReleaseRule.h"

#include <algorithm>
#include <stdexcept>

unsigned int OptVolDepOneReleaseRule::getNumOfDecisionVars() const {
  unsigned int count = 0;
  for (const auto& row : toOptTable) {
    count += isMarked(row.percentage) ? 1 : 0;
    count += static_cast<unsigned int>(
        std::count_if(row.releases.begin(), row.releases.end(), isMarked));
  }
  return count;
}

void OptVolDepOneReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptVolDepOneReleaseRule");
  auto value = values.begin();
  Table rows = toOptTable;
  for (auto& row : rows) {
    if (isMarked(row.percentage)) row.percentage = *value++ * 100.0;
    for (double& release : row.releases) {
      if (isMarked(release)) release = *value++ * maxRelease;
    }
  }
  std::stable_sort(rows.begin(), rows.end(),
                   [](const auto& a, const auto& b) { return a.percentage < b.percentage; });
  working().setVectorOfVolDepOneReleaseStruct(rows);
}

std::shared_ptr<ReleaseRule> OptVolDepOneReleaseRule::convertToReleaseRule() const {
  auto rule = getReleaseRuleInstance();
  rule->setReservoirDependencyId(working().getReservoirDependencyId());
  rule->setVectorOfVolDepOneReleaseStruct(working().getVectorOfVolDepOneReleaseStruct());
  return rule;
}

void OptVolDepOneReleaseRule::setToOptVectorOfVolDepOneReleaseStruct(const Table& rows) {
  for (const auto& row : rows) {
    checkRowSize(row);
    if (std::any_of(row.releases.begin(), row.releases.end(),
                    [](double v) { return v < 0.0 && !isMarked(v); })) {
      throw std::invalid_argument(
          "OptVolDepOneReleaseRule::setVolumePeriodicReleaseStr(): All values of releases must be "
          "positive");
    }
  }
  toOptTable = rows;
}

void OptVolDepOneReleaseRule::setMaxRelease(double value) {
  checkMaxRelease(value, "OptVolDepOneReleaseRule");
  maxRelease = value;
}

void OptVolDepOneReleaseRule::copyOptInto(OptVolDepOneReleaseRule& target) const {
  target.toOptTable = toOptTable;
  target.maxRelease = maxRelease;
}
