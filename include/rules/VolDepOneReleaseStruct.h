#pragma once

#include <vector>

// One row of a one-reservoir step table: the releases that hold while the dependency's volume is
// at most percentage of its maximum and above the limit of the row before.
struct VolDepOneReleaseStruct {
  double percentage = 0.0;       // %, upper limit of the row
  std::vector<double> releases;  // m³/s; one value (static rule) or twelve, January first

  bool operator==(const VolDepOneReleaseStruct& other) const {
    return percentage == other.percentage && releases == other.releases;
  }
  bool operator!=(const VolDepOneReleaseStruct& other) const { return !(*this == other); }
};
