#include "common/regression/Regression.h"

Regression::Regression(const std::vector<Point2D>& points) : points(points) {}

double Regression::fit(double x, RegressionTechnique& technique) const {
  technique.calculate(points);
  return technique.fit(x);
}
