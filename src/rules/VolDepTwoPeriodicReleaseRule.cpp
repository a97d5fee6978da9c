#include "rules/VolDepTwoPeriodicReleaseRule.h"

#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> VolDepTwoPeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::periodicVolumeDependence2);
}

void VolDepTwoPeriodicReleaseRule::setVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table) {
  if (table.releases.size() != 12) {
    throw std::invalid_argument(
        textPrefix() +
        "VolDepTwoPeriodicReleaseRule: the releases vector must be the size "
        "12.");
  }
  VolDepTwoReleaseRule::setVolDepTwoReleaseStruct(table);
}

double VolDepTwoPeriodicReleaseRule::doGetRelease(const Date& date, unsigned int i,
                                                  unsigned int j) const {
  return getVolDepTwoReleaseStruct().releases[date.getMonth() - 1][i][j];
}
