#pragma once

#include <memory>
#include <vector>

#include "common/regression/RegressionTechnique.h"

// The "CubicSpline" technique (RegressionType::cubicSpline). Level-area-volume tables are read in
// straight lines, so it keeps the piecewise-cubic form ((a h + b) h + c) h + y but builds only its
// linear case: a = b = 0 and c the slope of each segment. Outside the table it continues the
// first and last segments.
class CubicSplineTechnique : public RegressionTechnique {
 public:
  // A technique without a table; calculate() must come before fit().
  CubicSplineTechnique();

  // The interpolated y for value; extrapolated along the end segments outside the table.
  // Throws std::logic_error "CubicSplineTechnique::fit(): no table" before any calculate().
  double fit(double value) const override;
  // calculate(x, y) over the points' coordinates.
  void calculate(const std::vector<Point2D>& points) override;
  // Builds the segments of the table (xValues[i], yValues[i]). Throws std::invalid_argument
  // "CubicSplineTechnique::calculate(): " followed by "x and y differ in size", "at least three
  // points are needed" or "x must be strictly increasing"; the previous table then stays.
  void calculate(const std::vector<double>& xValues, const std::vector<double>& yValues);
  // A CubicSplineTechnique with the same table.
  std::shared_ptr<RegressionTechnique> copy() const override;

 private:
  std::vector<double> x;
  std::vector<double> y;
  // Segment i holds y(v) = ((a[i] h + b[i]) h + c[i]) h + y[i], h = v - x[i]; the last entry
  // carries the slope on past the end of the table.
  std::vector<double> a;
  std::vector<double> b;
  std::vector<double> c;
};
