#pragma once

#include <vector>

// When a bidirectional link flows in its original sense and when it is inverted, by the volumes
// of the reservoirs at both ends. senses[source band][destiny band] is 0 to keep the original
// sense and 1 to invert it.
struct SenseInfo {
  std::vector<double> originalSourceVolumesRange;   // hm³, ascending
  std::vector<double> originalDestinyVolumesRange;  // hm³, ascending
  std::vector<std::vector<int>> senses;
};
