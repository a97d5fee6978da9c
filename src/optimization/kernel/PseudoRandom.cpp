#include "optimization/kernel/PseudoRandom.h"

#include <cmath>
#include <memory>

#include "optimization/kernel/RandomGenerator.h"

namespace {
std::unique_ptr<RandomGenerator>& instance() {
  static std::unique_ptr<RandomGenerator> theGenerator;
  return theGenerator;
}
}  // namespace

RandomGenerator& PseudoRandom::generator() {
  std::unique_ptr<RandomGenerator>& current = instance();
  if (!current) current = std::make_unique<RandomGenerator>();
  return *current;
}

double PseudoRandom::seedFor(std::int64_t n) {
  std::int64_t reduced = n % 32768;
  if (reduced < 0) reduced += 32768;
  return static_cast<double>(reduced) / 32767.0;
}

void PseudoRandom::setSeed(std::int64_t n) {
  instance() = std::make_unique<RandomGenerator>(seedFor(n));
}

double PseudoRandom::randDouble() { return generator().randomperc(); }

double PseudoRandom::randDouble(double a, double b) { return generator().rndreal(a, b); }

int PseudoRandom::randInt(int a, int b) { return generator().rnd(a, b); }

double PseudoRandom::randNormal(double mean, double standardDeviation) {
  double u;
  double v;
  double s;
  do {
    u = randDouble(-1.0, 1.0);
    v = randDouble(-1.0, 1.0);
    s = u * u + v * v;
  } while (s >= 1.0);
  return mean + standardDeviation * u * std::sqrt(-2.0 * std::log(s) / s);
}

double* PseudoRandom::randSphere(int dimension) {
  double* values = new double[dimension];
  double norm = 0.0;
  for (int i = 0; i < dimension; ++i) {
    values[i] = randNormal(0.0, 1.0);
    norm += values[i] * values[i];
  }
  norm = std::sqrt(norm);
  const double radius = randDouble();
  for (int i = 0; i < dimension; ++i) values[i] = values[i] * radius / norm;
  return values;
}
