#pragma once

// How far a regression tree may grow: leaves, depth, and the least improvement a split must
// bring (0: any).
struct TreeLimits {
  unsigned int maxNumberOfLeaves = 99999;
  unsigned int maxDepth = 99999;
  double cp = 0.0;
};
