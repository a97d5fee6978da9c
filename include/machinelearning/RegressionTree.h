#pragma once

#include <memory>

#include "machinelearning/RegressionTreeNode.h"

// The nodes of a grown regression tree, held by their root. Copies are deep, so that a copy
// trained or pruned apart leaves the original as it was.
class RegressionTree {
 public:
  RegressionTree() = default;
  RegressionTree(const RegressionTree& other);
  RegressionTree& operator=(const RegressionTree& other);
  RegressionTree(RegressionTree&&) = default;
  RegressionTree& operator=(RegressionTree&&) = default;

  // Null until a tree is grown.
  const std::shared_ptr<RegressionTreeNode>& getRoot() const;
  void setRoot(std::shared_ptr<RegressionTreeNode> node);

 private:
  std::shared_ptr<RegressionTreeNode> root;
};
