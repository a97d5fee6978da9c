#include "rules/OptPeriodicReleaseRule.h"

#include <algorithm>
#include <stdexcept>

#include "rules/PeriodicReleaseRule.h"
#include "vocabulary/Vocabulary.h"

namespace {

void checkRelease(double value) {
  if (value < 0.0) {
    throw std::invalid_argument(
        "OptPeriodicReleaseRule::setRelease(): the release is a negative value");
  }
}

}  // namespace

Enum<ReleaseRuleType> OptPeriodicReleaseRule::getType() const {
  return Vocabulary::of(ReleaseRuleType::optPeriodic);
}

double OptPeriodicReleaseRule::getRelease(const Date& date) const {
  return releases[date.getMonth() - 1];
}

std::shared_ptr<ReleaseRule> OptPeriodicReleaseRule::copy() const {
  auto rule = std::static_pointer_cast<OptPeriodicReleaseRule>(ReleaseRule::copy());
  rule->releases = releases;
  rule->bounds = bounds;
  rule->toOptVector = toOptVector;
  return rule;
}

unsigned int OptPeriodicReleaseRule::getNumOfDecisionVars() const {
  return static_cast<unsigned int>(std::count(toOptVector.begin(), toOptVector.end(), true));
}

void OptPeriodicReleaseRule::setDecisionVars(const std::vector<double>& values) {
  checkDecisionVarsSize(values, "OptPeriodicReleaseRule");
  auto value = values.begin();
  for (std::size_t month = 0; month < releases.size(); ++month) {
    if (toOptVector[month]) releases[month] = bounds.scaled(*value++);
  }
}

std::shared_ptr<ReleaseRule> OptPeriodicReleaseRule::convertToReleaseRule() const {
  auto rule = std::make_shared<PeriodicReleaseRule>();
  rule->setRelease(releases);
  return rule;
}

void OptPeriodicReleaseRule::setRelease(unsigned int month, double value) {
  if (month < 1 || month > 12) {
    throw std::invalid_argument("OptPeriodicReleaseRule::setRelease(): invalid month value");
  }
  checkRelease(value);
  releases[month - 1] = value;
}

void OptPeriodicReleaseRule::setRelease(const std::vector<double>& values) {
  if (values.size() != 12) {
    throw std::invalid_argument(
        "OptPeriodicReleaseRule::setRelease(): invalid size of vector releases");
  }
  std::for_each(values.begin(), values.end(), checkRelease);
  releases = values;
}

bool OptPeriodicReleaseRule::getToOpt(unsigned int index) const {
  if (index >= toOptVector.size()) {
    throw std::invalid_argument("OptPeriodicReleaseRule::getToOpt(): invalid index value");
  }
  return toOptVector[index];
}

void OptPeriodicReleaseRule::setToOpt(unsigned int index, bool value) {
  if (index >= toOptVector.size()) {
    throw std::invalid_argument("OptPeriodicReleaseRule::setToOpt(): invalid index value");
  }
  toOptVector[index] = value;
}

void OptPeriodicReleaseRule::setToOpt(const std::vector<bool>& values) {
  if (values.size() != 12) {
    throw std::invalid_argument("OptPeriodicReleaseRule::setToOpt(): invalid size of vector toOpt");
  }
  toOptVector = values;
}
