#pragma once

#include <cstdint>

// A window of a series that resembles its last window: the position of the window's last value
// and the Euclidean distance between the two windows. The window's successor, the value at
// index + 1, is what the neighbour tells of the future.
struct KNNTSPNeighbor {
  uint32_t index = 0;
  double distance = 0.0;
};
