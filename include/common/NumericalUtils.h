#pragma once

#include <string>
#include <vector>

#include "common/Point2D.h"

// Tolerant arithmetic, error measures and random numbers shared across the system. The value
// -999.0 marks a missing value everywhere; see isEmpty().
class NumericalUtils {
 public:
  // True when |a - b| is at most eps.
  static bool compareDoubles(const double& a, const double& b, const double& eps);
  // True when |a - b| is at most eps, in long double.
  static bool compareLongDoubles(const long double& a, const long double& b,
                                 const long double& eps);
  // a - b, or exactly 0.0 when |a - b| is at most eps.
  static double subtractDoubles(const double& a, const double& b, const double& eps);
  // True when the value is exactly the missing-value mark -999.0.
  static bool isEmpty(double value);
  // True for an optional sign, digits with an optional decimal point, and an optional exponent
  // ("-1.5e3", ".5", "7."); false for empty text, blanks or anything after the number.
  static bool isNumber(const std::string& text);
  // The angle in degrees.
  static double radToDegree(double radians);
  // 1.7976931348623157e308, the largest double.
  static double getMaxDouble();
  // 1.7976931348623156e305: stands for "no limit" where sums of such bounds must not overflow.
  static double getNearMaxDouble();
  // value rounded to the given number of decimals, halves upward: floor(value * 10^d + 0.5) / 10^d.
  static double getDoublePrecision(double value, double decimals);
  // The smallest k * 100 / n, k >= 1, not below guarantee within 1e-6: the first percentage that
  // n periods can reach. Throws std::invalid_argument when n is 0.
  static double getNearGuarantee(double guarantee, unsigned int n);
  // Mean of the squared differences of the pairs (a[i], b[i]); with skipEmpty, pairs with -999.0
  // (within 1e-6) on either side are left out. NaN when no pair is kept. Throws
  // std::invalid_argument when the sizes differ.
  static double MeanSquaredError(const std::vector<double>& a, const std::vector<double>& b,
                                 bool skipEmpty);
  // 1 - sum((modelled - observed)^2) / sum((observed - mean of observed)^2) over the kept pairs,
  // observed first; skipping as in MeanSquaredError. Throws std::invalid_argument on sizes.
  static double nashSutcliffeModelEfficiencyCoefficientNSE(const std::vector<double>& observed,
                                                           const std::vector<double>& modelled,
                                                           bool skipEmpty);
  // Distance between two vectors given as pairs: point i is (a[i], b[i]).
  static double euclideanDistance(const std::vector<Point2D>& pairs);
  // Sum of |a[i] - b[i]| over pairs given as in euclideanDistance().
  static double manhattanDistance(const std::vector<Point2D>& pairs);
  // The points (x[i], y[i]). Throws std::invalid_argument when the sizes differ.
  static std::vector<Point2D> makeVectorOfPoint2D(const std::vector<double>& x,
                                                  const std::vector<double>& y);

  // The random functions below share one Mersenne Twister, seeded from std::random_device until
  // setRandomSeed() is called; they may be called from several threads.

  // Reseeds the shared engine so that a run can be repeated.
  static void setRandomSeed(unsigned int seed);
  // A uniform number in [low, high). Throws std::invalid_argument when low > high.
  static double randomUniformNumber(const double& low, const double& high);
  // A uniform integer in [low, high]. Throws std::invalid_argument when low > high.
  static unsigned int randomClosedInterval(unsigned int low, unsigned int high);
  // 0, 1, ..., n - 1, in random order when shuffled: Fisher-Yates from the last position down,
  // position i swapping with j = floor(e * (i + 1) / 2^32) for the next 32-bit output e.
  static std::vector<unsigned int> makeVectorOfIndexes(unsigned int n, bool shuffled);
};
