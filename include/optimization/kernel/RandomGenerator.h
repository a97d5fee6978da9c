#pragma once

// Subtractive lagged generator of doubles in [0, 1), the kernel's only source of randomness.
// The 55 lagged values are refreshed in one pass every 54 draws (advance_random); the sequence is
// a pure function of the seed, so two generators with the same seed give the same draws.
class RandomGenerator {
 public:
  static constexpr int kLags = 55;

  // Seeds the C library generator with the current time and takes
  // seed = (rand() mod 32768) / 32767.0, then warms up. The modulus keeps the seed in [0, 1] on
  // platforms whose rand() reaches far beyond 32767.
  RandomGenerator();
  // Warms up from the given seed, normally in [0, 1].
  explicit RandomGenerator(double seed);

  // Clears the lagged values and warms up again from the stored seed: the sequence restarts.
  void randomize();
  // Fills the lagged values from seed, then advances them three times and restarts the index.
  void warmup_random(double seed);
  // Refreshes all 55 lagged values.
  void advance_random();
  // The next value in [0, 1).
  double randomperc();
  // An integer in [low, high]; low itself, without a draw, when low is not below high.
  int rnd(int low, int high);
  // (high - low) * randomperc() + low.
  double rndreal(double low, double high);

  double getSeed() const { return seed; }

 private:
  double seed;
  double oldrand[kLags];
  int jrand;
};
