#pragma once

#include <string>

// A decision variable of any encoding. Real-coded algorithms read every encoding through the
// same value and bound accessors (see XReal).
class Variable {
 public:
  virtual ~Variable() = default;
  // A new copy of the same dynamic type; the caller owns it.
  virtual Variable* deepCopy() const = 0;
  virtual double getValue() const = 0;
  virtual void setValue(double value) = 0;
  virtual double getLowerBound() const = 0;
  virtual double getUpperBound() const = 0;
  virtual std::string toString() const = 0;

  // Deliberately not virtual: through a Variable pointer they only print that the type does not
  // implement them, and Real and BinaryReal answer only when called on their own type.
  void setLowerBound(double bound);
  void setUpperBound(double bound);

  // The dynamic type's name, e.g. "Real".
  std::string getVariableType() const;
};
