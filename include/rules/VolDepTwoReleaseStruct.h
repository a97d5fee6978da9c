#pragma once

#include <vector>

// A two-reservoir step table: rows by the first dependency's volume, columns by the second's,
// each limit the upper end of its step.
struct VolDepTwoReleaseStruct {
  std::vector<double> volumePercentageD1;  // %, ascending upper limits for the first dependency
  std::vector<double> volumePercentageD2;  // %, ascending upper limits for the second dependency
  // m³/s, [month slot][row of D1][row of D2]: one month slot (static rule) or twelve, January
  // first (periodic rule).
  std::vector<std::vector<std::vector<double>>> releases;

  bool operator==(const VolDepTwoReleaseStruct& other) const {
    return volumePercentageD1 == other.volumePercentageD1 &&
           volumePercentageD2 == other.volumePercentageD2 && releases == other.releases;
  }
  bool operator!=(const VolDepTwoReleaseStruct& other) const { return !(*this == other); }
};
