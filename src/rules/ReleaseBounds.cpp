#include "rules/ReleaseBounds.h"

#include <stdexcept>

#include "common/NumericalUtils.h"

void ReleaseBounds::setLower(double value) {
  checkNotNegative(value, "lowerRelease");
  checkOrder(value, upper, "setLowerRelease");
  lower = value;
}

void ReleaseBounds::setUpper(double value) {
  checkNotNegative(value, "upperRelease");
  checkOrder(lower, value, "setUpperRelease");
  upper = value;
}

void ReleaseBounds::set(double lowerValue, double upperValue) {
  checkNotNegative(lowerValue, "lowerRelease");
  checkNotNegative(upperValue, "upperRelease");
  checkOrder(lowerValue, upperValue, "setUpperRelease");
  lower = lowerValue;
  upper = upperValue;
}

void ReleaseBounds::checkNotNegative(double value, const char* bound) const {
  if (value < 0.0) {
    throw std::invalid_argument(std::string(owner) + "::setRelease(): the " + bound +
                                " is a negative value");
  }
}

void ReleaseBounds::checkOrder(double lowerValue, double upperValue, const char* setter) const {
  if (NumericalUtils::subtractDoubles(lowerValue, upperValue, 1e-06) > 0.0) {
    throw std::invalid_argument(std::string(owner) + "::" + setter +
                                ": The value of upperRelease must be greater than lowerRelease");
  }
}
