#include "rules/VolDepTwoStaticReleaseRule.h"

#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> VolDepTwoStaticReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::staticVolumeDependence2);
}

void VolDepTwoStaticReleaseRule::setVolDepTwoReleaseStruct(const VolDepTwoReleaseStruct& table) {
  // Without limits on either side getRelease() never reads a slot, so an empty table is valid.
  const bool readsSlot = !table.volumePercentageD1.empty() && !table.volumePercentageD2.empty();
  if (readsSlot && table.releases.empty()) {
    throw std::invalid_argument(textPrefix() +
                                "VolDepTwoStaticReleaseRule: the releases vector must have a month "
                                "slot.");
  }
  VolDepTwoReleaseRule::setVolDepTwoReleaseStruct(table);
}

double VolDepTwoStaticReleaseRule::doGetRelease(const Date&, unsigned int i, unsigned int j) const {
  return getVolDepTwoReleaseStruct().releases[0][i][j];
}
