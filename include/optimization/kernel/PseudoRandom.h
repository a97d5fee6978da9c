#pragma once

#include <cstdint>

class RandomGenerator;

// The process-wide random source of the kernel: one RandomGenerator, made on first use with a
// seed from the clock unless setSeed() has installed a seeded one. Unsynchronised: one algorithm
// at a time per process.
class PseudoRandom {
 public:
  PseudoRandom() = delete;

  // Replaces the process-wide generator by one seeded with (n mod 32768) / 32767.0 and warmed up,
  // so that every later draw, and hence a whole run, is reproducible. Negative n count from
  // 32768 downwards (n = -1 gives the same seed as 32767).
  static void setSeed(std::int64_t n);
  // The seed in [0, 1] that setSeed(n) installs.
  static double seedFor(std::int64_t n);

  // A value in [0, 1).
  static double randDouble();
  // A value in [a, b) for a < b; (b - a) * u + a in general.
  static double randDouble(double a, double b);
  // An integer in [a, b], both ends included; a when a is not below b.
  static int randInt(int a, int b);
  // A normal deviate by the polar method.
  static double randNormal(double mean, double standardDeviation);
  // A new array (delete[] by the caller) of dimension values: a normal direction scaled to a
  // radius drawn uniformly in [0, 1).
  static double* randSphere(int dimension);

 private:
  static RandomGenerator& generator();
};
