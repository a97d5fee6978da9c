#pragma once

#include "optimization/kernel/PseudoRandom.h"

// The repair shared by the uniform and non-uniform mutations. Below the lower bound the value goes
// to the middle of the range, or with a perturbation b in (0, 1) to a random point in the lower
// part; above the upper bound only a perturbation in (0, 1) brings it back, otherwise it stays
// outside. The asymmetry is part of the operators' behaviour.
inline double repairBounds(double value, double lower, double upper, double half,
                           double perturbation) {
  const bool damped = perturbation > 0.0 && perturbation < 1.0;
  if (value < lower) {
    value = lower + half;
    if (damped) value = lower + half * perturbation * PseudoRandom::randDouble();
  } else if (value > upper) {
    if (damped) value = upper - perturbation * PseudoRandom::randDouble() * half;
  }
  return value;
}
