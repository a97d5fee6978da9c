#pragma once

#include <cstdint>
#include <vector>

// The best least-squares cut of a node's entries on one attribute: the entries on either side
// (indexes into the work dataset), the sum of squared residuals of the cut, and the average of all
// the node's entries.
struct RegressionTreeNodeInfo {
  double average = 0.0;
  std::vector<uint32_t> leftIndexes;
  std::vector<uint32_t> rightIndexes;
  double bestSSR = 1.7976931348623157e308;
  uint32_t attribute = 0;
};
