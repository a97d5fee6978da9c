#include "rules/PeriodicReleaseRule.h"

#include <cassert>
#include <stdexcept>

#include "vocabulary/Vocabulary.h"

Enum<ReleaseRuleType> PeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::periodic);
}

double PeriodicReleaseRule::getRelease(const Date& date) const {
  return releases[date.getMonth() - 1];
}

std::shared_ptr<ReleaseRule> PeriodicReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<PeriodicReleaseRule>(ReleaseRule::copy());
  rule->releases = releases;
  return rule;
}

void PeriodicReleaseRule::setRelease(unsigned int month, double value) {
  if (month >= 13) {
    throw std::invalid_argument("PeriodicReleaseRule::setRelease(): invalid month value");
  }
  if (value < 0.0) {
    throw std::invalid_argument(
        "PeriodicReleaseRule::setRelease(): the release is a negative value");
  }
  assert(month >= 1);
  releases[month - 1] = value;
}

void PeriodicReleaseRule::setRelease(const std::vector<double>& values) {
  if (values.size() != 12) {
    throw std::invalid_argument(
        "PeriodicReleaseRule::setRelease(): invalid size of vector releases");
  }
  releases = values;
}
