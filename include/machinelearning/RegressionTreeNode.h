#pragma once

#include <cstdint>
#include <memory>

// A node of a regression tree. At a split, attribute and value are the question "is
// x[attribute] below value?" (yes: left); at a leaf, value is the prediction. A leaf has neither
// child.
class RegressionTreeNode {
 public:
  uint32_t getAttribute() const;
  void setAttribute(uint32_t attribute);
  double getValue() const;
  void setValue(double value);
  const std::shared_ptr<RegressionTreeNode>& getLeft() const;
  void setLeft(std::shared_ptr<RegressionTreeNode> node);
  const std::shared_ptr<RegressionTreeNode>& getRight() const;
  void setRight(std::shared_ptr<RegressionTreeNode> node);
  // The training entries that reached the node.
  uint32_t getNumberOfEntries() const;
  void setNumberOfEntries(uint32_t n);
  bool isLeaf() const;
  // A copy of this node and of all nodes below it.
  std::shared_ptr<RegressionTreeNode> deepCopy() const;

 private:
  uint32_t attribute = 0;
  double value = 0.0;
  std::shared_ptr<RegressionTreeNode> left;
  std::shared_ptr<RegressionTreeNode> right;
  uint32_t numberOfEntries = 0;
};
