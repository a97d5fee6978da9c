#pragma once

#include <vector>

#include "common/Point2D.h"
#include "common/regression/RegressionTechnique.h"

// A table of points to be read through any interpolator.
class Regression {
 public:
  // Keeps a copy of the table.
  explicit Regression(const std::vector<Point2D>& points);

  // Prepares technique over the table and gives its y for x; throws what the technique's
  // calculate() and fit() throw.
  double fit(double x, RegressionTechnique& technique) const;

 private:
  std::vector<Point2D> points;
};
