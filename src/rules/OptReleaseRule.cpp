#include "rules/OptReleaseRule.h"

#include <stdexcept>
#include <string>

void OptReleaseRule::checkDecisionVarsSize(const std::vector<double>& values,
                                           const char* className) const {
  if (values.size() != getNumOfDecisionVars()) {
    throw std::invalid_argument(std::string(className) +
                                "::setDecisionVars: Invalid size of values vector");
  }
}

void OptReleaseRule::checkMaxRelease(double value, const char* className) {
  if (value < 0.0) {
    throw std::invalid_argument(std::string(className) +
                                "::setMaxRelease(): the maxRelease is a negative value");
  }
}
