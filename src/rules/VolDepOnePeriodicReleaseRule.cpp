#include "rules/VolDepOnePeriodicReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> VolDepOnePeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::periodicVolumeDependence1);
}

void VolDepOnePeriodicReleaseRule::setVectorOfVolDepOneReleaseStruct(
    const std::vector<VolDepOneReleaseStruct>& rows) {
  for (const auto& row : rows) checkReleasesSize(row);
  VolDepOneReleaseRule::setVectorOfVolDepOneReleaseStruct(rows);
}

void VolDepOnePeriodicReleaseRule::checkReleasesSize(const VolDepOneReleaseStruct& row) const {
  if (row.releases.size() != 12) {
    throw std::invalid_argument(
        textPrefix() +
        "VolDepOnePeriodicReleaseRule: the releases vector must be the size "
        "12.");
  }
}

double VolDepOnePeriodicReleaseRule::doGetRelease(const Date& date, unsigned int row) const {
  return getVectorOfVolDepOneReleaseStruct()[row].releases[date.getMonth() - 1];
}
