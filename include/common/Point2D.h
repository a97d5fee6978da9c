#pragma once

// A pair of coordinates: a map position, or one (x, y) point of a curve.
struct Point2D {
  double x = 0.0;
  double y = 0.0;
};
