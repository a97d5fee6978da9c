#include "common/NumericalUtils.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <mutex>
#include <numeric>
#include <random>
#include <stdexcept>

namespace {

constexpr double kEmpty = -999.0;
constexpr double kTolerance = 1e-6;
constexpr double kPi = 3.14159265358979323846;

// The engine is shared by every caller, so each draw holds the lock.
struct RandomSource {
  std::mutex mutex;
  std::mt19937 engine{std::random_device{}()};
};

RandomSource& randomSource() {
  static RandomSource source;
  return source;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Advances pos over digits and tells how many there were.
std::size_t skipDigits(const std::string& text, std::size_t& pos) {
  const std::size_t start = pos;
  while (pos < text.size() && isDigit(text[pos])) ++pos;
  return pos - start;
}

void skipSign(const std::string& text, std::size_t& pos) {
  if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) ++pos;
}

// The pairs of a and b to compare; with skipEmpty, pairs holding a missing value are dropped.
std::vector<Point2D> keptPairs(const std::vector<double>& a, const std::vector<double>& b,
                               bool skipEmpty, const char* function) {
  if (a.size() != b.size()) {
    throw std::invalid_argument(std::string("NumericalUtils::") + function +
                                "(): vectors differ in size");
  }
  std::vector<Point2D> pairs;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const bool missing = NumericalUtils::compareDoubles(a[i], kEmpty, kTolerance) ||
                         NumericalUtils::compareDoubles(b[i], kEmpty, kTolerance);
    if (!skipEmpty || !missing) pairs.push_back({a[i], b[i]});
  }
  return pairs;
}

}  // namespace

bool NumericalUtils::compareDoubles(const double& a, const double& b, const double& eps) {
  return std::fabs(a - b) <= eps;
}

bool NumericalUtils::compareLongDoubles(const long double& a, const long double& b,
                                        const long double& eps) {
  return std::fabs(a - b) <= eps;
}

double NumericalUtils::subtractDoubles(const double& a, const double& b, const double& eps) {
  const double difference = a - b;
  return std::fabs(difference) <= eps ? 0.0 : difference;
}

bool NumericalUtils::isEmpty(double value) { return value == kEmpty; }

bool NumericalUtils::isNumber(const std::string& text) {
  std::size_t pos = 0;
  skipSign(text, pos);
  std::size_t mantissaDigits = skipDigits(text, pos);
  if (pos < text.size() && text[pos] == '.') {
    ++pos;
    mantissaDigits += skipDigits(text, pos);
  }
  if (mantissaDigits == 0) return false;
  if (pos < text.size() && (text[pos] == 'e' || text[pos] == 'E')) {
    ++pos;
    skipSign(text, pos);
    if (skipDigits(text, pos) == 0) return false;
  }
  return pos == text.size();
}

double NumericalUtils::radToDegree(double radians) { return radians * 180.0 / kPi; }

double NumericalUtils::getMaxDouble() { return 1.7976931348623157e308; }

double NumericalUtils::getNearMaxDouble() { return 1.7976931348623156e305; }

double NumericalUtils::getDoublePrecision(double value, double decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::floor(value * scale + 0.5) / scale;
}

double NumericalUtils::getNearGuarantee(double guarantee, unsigned int n) {
  if (n == 0) throw std::invalid_argument("NumericalUtils::getNearGuarantee(): n must be positive");
  const auto level = [n](double steps) { return steps * 100.0 / n; };
  // The estimate can be one step high when guarantee lies just above a reachable level, which
  // still counts within the tolerance.
  double steps = std::max(1.0, std::ceil(guarantee * n / 100.0));
  if (steps > 1.0 && subtractDoubles(level(steps - 1.0), guarantee, kTolerance) >= 0.0) {
    steps -= 1.0;
  }
  return level(steps);
}

double NumericalUtils::MeanSquaredError(const std::vector<double>& a, const std::vector<double>& b,
                                        bool skipEmpty) {
  const std::vector<Point2D> pairs = keptPairs(a, b, skipEmpty, "MeanSquaredError");
  double sum = 0.0;
  for (const Point2D& pair : pairs) sum += (pair.x - pair.y) * (pair.x - pair.y);
  return sum / static_cast<double>(pairs.size());
}

double NumericalUtils::nashSutcliffeModelEfficiencyCoefficientNSE(
    const std::vector<double>& observed, const std::vector<double>& modelled, bool skipEmpty) {
  const std::vector<Point2D> pairs =
      keptPairs(observed, modelled, skipEmpty, "nashSutcliffeModelEfficiencyCoefficientNSE");
  double observedSum = 0.0;
  for (const Point2D& pair : pairs) observedSum += pair.x;
  const double observedMean = observedSum / static_cast<double>(pairs.size());
  double errors = 0.0;
  double deviations = 0.0;
  for (const Point2D& pair : pairs) {
    errors += (pair.y - pair.x) * (pair.y - pair.x);
    deviations += (pair.x - observedMean) * (pair.x - observedMean);
  }
  return 1.0 - errors / deviations;
}

double NumericalUtils::euclideanDistance(const std::vector<Point2D>& pairs) {
  double sum = 0.0;
  for (const Point2D& pair : pairs) sum += (pair.x - pair.y) * (pair.x - pair.y);
  return std::sqrt(sum);
}

double NumericalUtils::manhattanDistance(const std::vector<Point2D>& pairs) {
  double sum = 0.0;
  for (const Point2D& pair : pairs) sum += std::fabs(pair.x - pair.y);
  return sum;
}

std::vector<Point2D> NumericalUtils::makeVectorOfPoint2D(const std::vector<double>& x,
                                                         const std::vector<double>& y) {
  if (x.size() != y.size()) {
    throw std::invalid_argument("NumericalUtils::makeVectorOfPoint2D(): x and y differ in size");
  }
  std::vector<Point2D> points;
  points.reserve(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) points.push_back({x[i], y[i]});
  return points;
}

void NumericalUtils::setRandomSeed(unsigned int seed) {
  RandomSource& source = randomSource();
  std::lock_guard<std::mutex> lock(source.mutex);
  source.engine.seed(seed);
}

double NumericalUtils::randomUniformNumber(const double& low, const double& high) {
  if (low > high) {
    throw std::invalid_argument("NumericalUtils::randomUniformNumber(): low is above high");
  }
  std::uniform_real_distribution<double> distribution(low, high);
  RandomSource& source = randomSource();
  std::lock_guard<std::mutex> lock(source.mutex);
  return distribution(source.engine);
}

unsigned int NumericalUtils::randomClosedInterval(unsigned int low, unsigned int high) {
  if (low > high) {
    throw std::invalid_argument("NumericalUtils::randomClosedInterval(): low is above high");
  }
  std::uniform_int_distribution<unsigned int> distribution(low, high);
  RandomSource& source = randomSource();
  std::lock_guard<std::mutex> lock(source.mutex);
  return distribution(source.engine);
}

std::vector<unsigned int> NumericalUtils::makeVectorOfIndexes(unsigned int n, bool shuffled) {
  std::vector<unsigned int> indexes(n);
  std::iota(indexes.begin(), indexes.end(), 0u);
  if (!shuffled) return indexes;
  RandomSource& source = randomSource();
  std::lock_guard<std::mutex> lock(source.mutex);
  // Written out rather than std::shuffle, whose draws differ between standard libraries: a
  // seeded split must be the same wherever it is repeated.
  for (std::size_t i = indexes.size(); i > 1; --i) {
    const auto below = static_cast<std::uint64_t>(i);
    const std::size_t j = static_cast<std::size_t>((source.engine() * below) >> 32);
    std::swap(indexes[i - 1], indexes[j]);
  }
  return indexes;
}
