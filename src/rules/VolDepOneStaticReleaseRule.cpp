#include "rules/VolDepOneStaticReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> VolDepOneStaticReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::staticVolumeDependence1);
}

void VolDepOneStaticReleaseRule::setVectorOfVolDepOneReleaseStruct(
    const std::vector<VolDepOneReleaseStruct>& rows) {
  for (const auto& row : rows) checkReleasesSize(row);
  VolDepOneReleaseRule::setVectorOfVolDepOneReleaseStruct(rows);
}

void VolDepOneStaticReleaseRule::checkReleasesSize(const VolDepOneReleaseStruct& row) const {
  if (row.releases.empty()) {
    throw std::invalid_argument(textPrefix() +
                                "VolDepOneStaticReleaseRule: the releases vector must not be "
                                "empty.");
  }
}

double VolDepOneStaticReleaseRule::doGetRelease(const Date&, unsigned int row) const {
  return getVectorOfVolDepOneReleaseStruct()[row].releases[0];
}
