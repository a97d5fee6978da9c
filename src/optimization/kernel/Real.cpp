#include "optimization/kernel/Real.h"

#include <sstream>

#include "optimization/kernel/PseudoRandom.h"

Real::Real() : value(0.0), lowerBound(0.0), upperBound(0.0) {}

Real::Real(double lower, double upper)
    : value(PseudoRandom::randDouble(lower, upper)), lowerBound(lower), upperBound(upper) {}

Real::Real(const Variable* variable)
    : value(variable->getValue()),
      lowerBound(variable->getLowerBound()),
      upperBound(variable->getUpperBound()) {}

Variable* Real::deepCopy() const { return new Real(this); }

std::string Real::toString() const {
  std::ostringstream out;
  out << value;
  return out.str();
}
