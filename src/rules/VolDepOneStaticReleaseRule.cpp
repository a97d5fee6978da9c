#include "rules/VolDepOneStaticReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> VolDepOneStaticReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::staticVolumeDependence1);
}

void VolDepOneStaticReleaseRule::setVectorOfVolDepOneReleaseStruct(
    const std::vector<VolDepOneReleaseStruct>& rows) {
  if (std::any_of(rows.begin(), rows.end(), [](const auto& row) { return row.releases.empty(); })) {
    throw std::invalid_argument(
        "VolDepOneStaticReleaseRule: the releases vector must not be empty.");
  }
  VolDepOneReleaseRule::setVectorOfVolDepOneReleaseStruct(rows);
}

double VolDepOneStaticReleaseRule::doGetRelease(const Date&, unsigned int row) const {
  return getVectorOfVolDepOneReleaseStruct()[row].releases[0];
}
