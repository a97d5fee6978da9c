#pragma once

#include "core/Node.h"

// A source: the catchment that feeds the network.
class Basin : public Node {
 public:
  explicit Basin(const Point2D& position);
};
