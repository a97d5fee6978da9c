#include "optimization/kernel/RandomGenerator.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

RandomGenerator::RandomGenerator() {
  std::srand(static_cast<unsigned int>(std::time(nullptr)));
  seed = (std::rand() % 32768) / 32767.0;
  randomize();
}

RandomGenerator::RandomGenerator(double seed) : seed(seed) { randomize(); }

void RandomGenerator::randomize() {
  std::fill(oldrand, oldrand + kLags, 0.0);
  jrand = 0;
  warmup_random(seed);
}

void RandomGenerator::warmup_random(double seed) {
  oldrand[kLags - 1] = seed;
  double newRandom = 1e-9;
  double prevRandom = seed;
  for (int j = 1; j <= kLags - 1; ++j) {
    const int i = (21 * j) % (kLags - 1);
    oldrand[i] = newRandom;
    newRandom = prevRandom - newRandom;
    if (newRandom < 0.0) newRandom += 1.0;
    prevRandom = oldrand[i];
  }
  advance_random();
  advance_random();
  advance_random();
  jrand = 0;
}

void RandomGenerator::advance_random() {
  for (int j = 0; j < 24; ++j) {
    double newRandom = oldrand[j] - oldrand[j + 31];
    if (newRandom < 0.0) newRandom += 1.0;
    oldrand[j] = newRandom;
  }
  for (int j = 24; j < kLags; ++j) {
    double newRandom = oldrand[j] - oldrand[j - 24];
    if (newRandom < 0.0) newRandom += 1.0;
    oldrand[j] = newRandom;
  }
}

double RandomGenerator::randomperc() {
  ++jrand;
  if (jrand >= kLags) {
    jrand = 1;
    advance_random();
  }
  return oldrand[jrand];
}

int RandomGenerator::rnd(int low, int high) {
  if (low >= high) return low;
  const int drawn = static_cast<int>(randomperc() * (high - low + 1)) + low;
  return std::min(high, drawn);
}

double RandomGenerator::rndreal(double low, double high) {
  return (high - low) * randomperc() + low;
}
