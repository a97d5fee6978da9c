#include "common/regression/CubicSplineTechnique.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

[[noreturn]] void rejectTable(const char* reason) {
  throw std::invalid_argument(std::string("CubicSplineTechnique::calculate(): ") + reason);
}

}  // namespace

CubicSplineTechnique::CubicSplineTechnique()
    : RegressionTechnique(RegressionType::cubicSpline, "CubicSpline") {}

double CubicSplineTechnique::fit(double value) const {
  if (x.empty()) throw std::logic_error("CubicSplineTechnique::fit(): no table");
  const auto above = std::upper_bound(x.begin(), x.end(), value);
  if (above == x.begin()) {
    const double h = value - x[0];
    return (b[0] * h + c[0]) * h + y[0];
  }
  // The last x[i] not above value.
  const std::size_t i = static_cast<std::size_t>(above - x.begin()) - 1;
  const double h = value - x[i];
  if (i == x.size() - 1 && h > 0.0) return (b[i] * h + c[i]) * h + y[i];
  return ((a[i] * h + b[i]) * h + c[i]) * h + y[i];
}

void CubicSplineTechnique::calculate(const std::vector<Point2D>& points) {
  std::vector<double> xValues;
  std::vector<double> yValues;
  for (const Point2D& point : points) {
    xValues.push_back(point.x);
    yValues.push_back(point.y);
  }
  calculate(xValues, yValues);
}

void CubicSplineTechnique::calculate(const std::vector<double>& xValues,
                                     const std::vector<double>& yValues) {
  if (xValues.size() != yValues.size()) rejectTable("x and y differ in size");
  if (xValues.size() < 3) rejectTable("at least three points are needed");
  // Written with < so that a NaN is refused too.
  const auto notIncreasing = [](double left, double right) { return !(left < right); };
  if (std::adjacent_find(xValues.begin(), xValues.end(), notIncreasing) != xValues.end()) {
    rejectTable("x must be strictly increasing");
  }
  const std::size_t n = xValues.size();
  std::vector<double> cubic(n, 0.0);
  std::vector<double> quadratic(n, 0.0);
  std::vector<double> slope(n, 0.0);
  for (std::size_t i = 0; i + 1 < n; ++i) {
    slope[i] = (yValues[i + 1] - yValues[i]) / (xValues[i + 1] - xValues[i]);
  }
  // The derivative of the last segment at its end, so the table's last slope continues.
  const double h = xValues[n - 1] - xValues[n - 2];
  slope[n - 1] = 3.0 * cubic[n - 2] * h * h + 2.0 * quadratic[n - 2] * h + slope[n - 2];
  x = xValues;
  y = yValues;
  a = std::move(cubic);
  b = std::move(quadratic);
  c = std::move(slope);
}

std::shared_ptr<RegressionTechnique> CubicSplineTechnique::copy() const {
  return std::make_shared<CubicSplineTechnique>(*this);
}
