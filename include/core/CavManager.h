#pragma once

#include "core/Cav.h"

// Lookups over a reservoir curve.
class CavManager {
 public:
  // The y of x, interpolated (and extrapolated along the end segments) over the curve's rows.
  static double calculateInterpolation(const Cav& cav, double x);
};
