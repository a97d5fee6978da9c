#include "rules/VolDepOnePeriodicReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> VolDepOnePeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::periodicVolumeDependence1);
}

void VolDepOnePeriodicReleaseRule::setVectorOfVolDepOneReleaseStruct(
    const std::vector<VolDepOneReleaseStruct>& rows) {
  if (std::any_of(rows.begin(), rows.end(),
                  [](const auto& row) { return row.releases.size() != 12; })) {
    throw std::invalid_argument(
        "VolDepOnePeriodicReleaseRule: the releases vector must be the size 12.");
  }
  VolDepOneReleaseRule::setVectorOfVolDepOneReleaseStruct(rows);
}

double VolDepOnePeriodicReleaseRule::doGetRelease(const Date& date, unsigned int row) const {
  return getVectorOfVolDepOneReleaseStruct()[row].releases[date.getMonth() - 1];
}
