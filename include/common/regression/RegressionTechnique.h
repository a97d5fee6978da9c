#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/Point2D.h"
#include "vocabulary/EnumTypes.h"

// An interpolator over a table of points: calculate() prepares it from the table, fit() gives the
// y of any x.
class RegressionTechnique {
 public:
  // The y for x over the table given to calculate().
  virtual double fit(double x) const = 0;
  // Prepares the technique for the table; what it requires of the points is the technique's own.
  virtual void calculate(const std::vector<Point2D>& points) = 0;
  // Techniques are held through pointers to this base.
  virtual ~RegressionTechnique() = default;
  // An independent technique of the same kind, with the same table.
  virtual std::shared_ptr<RegressionTechnique> copy() const = 0;

  // The type by which project files name the technique.
  RegressionType getType() const { return type; }
  // The display name, "CubicSpline" for example.
  const std::string& getName() const { return name; }

 protected:
  // Each technique gives its own type and name.
  RegressionTechnique(RegressionType type, std::string name);

 private:
  RegressionType type;
  std::string name;
};
