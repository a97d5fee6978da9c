#pragma once

#include "core/Node.h"

// A point of confluence. The junction flagged as union closes an isolated network.
class Junction : public Node {
 public:
  explicit Junction(const Point2D& position);

  bool getIsUnion() const { return isUnion; }
  void setIsUnion(bool value) { isUnion = value; }
  std::shared_ptr<Element> copy() const override;

 private:
  bool isUnion = false;
};
